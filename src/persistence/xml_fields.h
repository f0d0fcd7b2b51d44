// SPDX-License-Identifier: GPL-3.0-or-later
// XML and record, bound field by field: one function lists the elements of a record in their order, and serves both
// for writing and for reading.
//
//     template <class Io, class R>      // R is const for the writer
//     void recordFields(Io& io, R& r) {
//         io.field("Name", r.Name);
//         io.group("Font", [&] { io.field("Bold", r.FontBold); });
//         io.older("Colour", r.Color);  // an element that only older files have, before the one that replaced it
//         io.field("Color", r.Color);
//         io.unread("Size", r.Size);    // one that is written, but never read back
//         io.addition("Share", r.Share);  // one of later versions, written where it holds something or is on
//     }
//
// A value goes through the overloads of toText() and fromText() for its type. Where the type alone does not tell how a
// value is written, the field is wrapped in a small type that holds a reference to it and has overloads of its own.
#pragma once

#include "persistence/xml_document.h"
#include "records/color.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace zelto {

// Switches are 0 and 1, floating-point numbers have six decimals, bytes are base64, an absent colour is an empty text.
QString toText(bool value);
QString toText(std::int32_t value);
QString toText(std::int64_t value);
QString toText(std::uint64_t value);
QString toText(float value);
QString toText(const QString& value);
QString toText(const QByteArray& value);
QString toText(const std::optional<Color>& value);

// A text that cannot be read leaves the value as it is. 64-bit and floating-point numbers beyond 1e9 count as that
// limit: such lengths make no sense on any photo, and sums of them must not overflow.
void fromText(const QString& text, bool& value);
void fromText(const QString& text, std::int32_t& value);
void fromText(const QString& text, std::int64_t& value);
void fromText(const QString& text, std::uint64_t& value);
void fromText(const QString& text, float& value);
void fromText(const QString& text, QString& value);
void fromText(const QString& text, QByteArray& value);
void fromText(const QString& text, std::optional<Color>& value);
void fromText(const QString& text, std::optional<float>& value);

// Writes each field as an element, absent texts as empty ones.
class FieldWriter {
  public:
    explicit FieldWriter(QXmlStreamWriter& writer) : writer_(writer) {}

    template <class Value>
    void field(QLatin1String name, const Value& value) {
        writeXmlElement(writer_, name, toText(value));
    }

    template <class Value>
    void older(QLatin1String, const Value&) {}

    template <class Value>
    void unread(QLatin1String name, const Value& value) {
        field(name, value);
    }

    void addition(QLatin1String name, bool value) {
        if (value) field(name, value);
    }
    void addition(QLatin1String name, const QString& value) {
        if (!value.isEmpty()) field(name, value);
    }
    template <class Value>
    void addition(QLatin1String name, const std::optional<Value>& value) {
        if (value) field(name, *value);
    }

    template <class Fields>
    void group(QLatin1String name, const Fields& fields) {
        writer_.writeStartElement(name);
        fields();
        writer_.writeEndElement();
    }

  private:
    QXmlStreamWriter& writer_;
};

// Reads each field from the first element of its name that no earlier field has taken; a field without one stays as
// it is. The order of the elements does not matter, and unknown ones are passed over.
class FieldReader {
  public:
    explicit FieldReader(const XmlElement& element) : element_(&element), taken_(element.children.size()) {}

    template <class Value>
    void field(QLatin1String name, Value&& value) {
        if (const XmlElement* element = take(name)) fromText(element->text, std::forward<Value>(value));
    }

    template <class Value>
    void older(QLatin1String name, Value&& value) {
        field(name, std::forward<Value>(value));
    }

    template <class Value>
    void unread(QLatin1String, const Value&) {}

    void addition(QLatin1String name, bool& value) { field(name, value); }
    void addition(QLatin1String name, QString& value) { field(name, value); }
    template <class Value>
    void addition(QLatin1String name, std::optional<Value>& value) {
        field(name, value);
    }

    template <class Fields>
    void group(QLatin1String name, const Fields& fields) {
        const XmlElement* const element = take(name);
        if (element == nullptr) return;
        const FieldReader outer = std::exchange(*this, FieldReader(*element));
        fields();
        *this = outer;
    }

  private:
    const XmlElement* take(QLatin1String name) {
        for (std::size_t i = 0; i < taken_.size(); ++i) {
            if (taken_[i] || element_->children[i].name != name) continue;
            taken_[i] = true;
            return &element_->children[i];
        }
        return nullptr;
    }

    const XmlElement* element_;
    std::vector<bool> taken_;
};

}  // namespace zelto
