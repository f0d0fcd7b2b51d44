// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/xml_document.h"

#include "platform/words.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace zelto {
namespace {

constexpr qint64 MaximumElements = 200'000;
constexpr int MaximumDepth = 32;

// The parser compares every attribute of a tag with every other, so its time grows with the square of their number.
constexpr qsizetype MaximumTagSize = 16384;

constexpr QLatin1String EscapedAttribute("Escaped");
constexpr QChar EscapeMark(u'\\');
constexpr qsizetype EscapeDigits = 4;

bool isPartOfAPair(const QString& text, qsizetype at) {
    return (text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate()) ||
           (text[at].isLowSurrogate() && at > 0 && text[at - 1].isHighSurrogate());
}

bool fitsXml(const QString& text, qsizetype at) {
    const char16_t c = text[at].unicode();
    if (c < 0x20) return c == u'\t' || c == u'\n' || c == u'\r';
    if (text[at].isSurrogate()) return isPartOfAPair(text, at);
    return c < 0xFFFE;
}

bool fitsXml(const QString& text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!fitsXml(text, i)) return false;
    }
    return true;
}

QString escaped(const QString& text) {
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == EscapeMark) {
            result.append(EscapeMark).append(EscapeMark);
        } else if (fitsXml(text, i)) {
            result.append(text[i]);
        } else {
            result.append(EscapeMark + u'x');
            result.append(
                QString::number(text[i].unicode(), 16).toUpper().rightJustified(EscapeDigits, u'0'));
        }
    }
    return result;
}

QString unescaped(const QString& text) {
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != EscapeMark || i + 1 == text.size()) {
            result.append(text[i]);
            continue;
        }
        bool isNumber = false;
        const ushort code = QStringView(text).mid(i + 2, EscapeDigits).toUShort(&isNumber, 16);
        const bool isCode = text[i + 1] == u'x' && isNumber;
        result.append(isCode ? QChar(code) : text[i + 1]);
        i += isCode ? 1 + EscapeDigits : 1;
    }
    return result;
}

QString typeAttribute(const QXmlStreamAttributes& attributes) {
    for (const QXmlStreamAttribute& attribute : attributes) {
        if (attribute.name().compare(QLatin1String("type"), Qt::CaseInsensitive) == 0) {
            return attribute.value().toString();
        }
    }
    return {};
}

// The tree of a document, built with the open elements on a stack so that depth costs no recursion.
class TreeBuilder {
  public:
    // Takes the reader's current token; what is wrong with it, or a null string.
    QString take(const QXmlStreamReader& reader) {
        switch (reader.tokenType()) {
            case QXmlStreamReader::StartElement:
                return open(reader);
            case QXmlStreamReader::EndElement:
                close();
                break;
            case QXmlStreamReader::Characters:
                if (!open_.empty()) open_.back().element.text.append(reader.text());
                break;
            default:
                break;
        }
        return {};
    }

    XmlElement takeRoot() { return std::move(root_); }

  private:
    QString open(const QXmlStreamReader& reader) {
        if (++elements_ > MaximumElements) return Words::tr("the file holds too many elements");
        if (open_.size() >= MaximumDepth) return Words::tr("the elements are nested too deeply");
        const QXmlStreamAttributes attributes = reader.attributes();
        open_.push_back({{reader.name().toString(),
                          typeAttribute(attributes),
                          QLatin1String(""),
                          reader.lineNumber(),
                          {}},
                         attributes.hasAttribute(EscapedAttribute)});
        return {};
    }

    void close() {
        OpenElement closed = std::move(open_.back());
        open_.pop_back();
        if (closed.isEscaped) closed.element.text = unescaped(closed.element.text);
        (open_.empty() ? root_ : open_.back().element.children.emplace_back()) = std::move(closed.element);
    }

    struct OpenElement {
        XmlElement element;
        bool isEscaped = false;
    };

    qint64 elements_ = 0;
    std::vector<OpenElement> open_;
    XmlElement root_;
};

// One past the ">" of the tag that starts at `at`; -1 when it is cut short. Quoted values may hold ">".
qsizetype endOfTag(const QByteArray& document, qsizetype at) {
    char quote = 0;
    for (; at < document.size(); ++at) {
        const char c = document[at];
        if (quote != 0) {
            if (c == quote) quote = 0;
        } else if (c == '"' || c == '\'') {
            quote = c;
        } else if (c == '>') {
            return at + 1;
        }
    }
    return -1;
}

// What makes a document unfit to be shown to the parser at all, and where; a null string when it is fit.
struct Refusal {
    QString what;
    qsizetype at = 0;
};

Refusal refusal(const QByteArray& document) {
    if (document.size() > MaximumXmlSize) return {Words::tr("the file is too large")};
    const qsizetype zero = document.indexOf('\0');
    if (zero >= 0) return {Words::tr("the file is not UTF-8 text"), zero};
    struct Section {
        QByteArrayView start, end;
    };
    static constexpr std::array<Section, 3> Sections = {
        {{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}}};
    qsizetype at = 0;
    while ((at = document.indexOf('<', at)) >= 0) {
        const QByteArrayView rest = QByteArrayView(document).sliced(at);
        const auto* const section = std::find_if(
            Sections.begin(), Sections.end(), [rest](const Section& s) { return rest.startsWith(s.start); });
        qsizetype end = -1;
        if (section != Sections.end()) {
            end = document.indexOf(section->end, at + section->start.size());
        } else if (rest.startsWith("<!")) {
            return {Words::tr("a document type declaration is not accepted"), at};
        } else {
            end = endOfTag(document, at);
            if ((end < 0 ? document.size() : end) - at > MaximumTagSize) {
                return {Words::tr("a tag is too long"), at};
            }
        }
        if (end < 0) break;  // cut short, which the parser words better
        at = end;
    }
    return {};
}

}  // namespace

QByteArray writeXml(QLatin1String root, const std::function<void(QXmlStreamWriter&)>& content) {
    QByteArray document;
    QXmlStreamWriter writer(&document);
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(2);
    writer.writeStartDocument(QStringLiteral("1.0"));
    writer.writeStartElement(root);
    content(writer);
    writer.writeEndElement();
    writer.writeEndDocument();
    return document;
}

void writeXmlElement(QXmlStreamWriter& writer, QLatin1String name, const QString& text) {
    writer.writeStartElement(name);
    const bool fits = fitsXml(text);
    if (!fits) writer.writeAttribute(EscapedAttribute, QStringLiteral("1"));
    // Readers turn a plain carriage return into a line feed; as a reference it stays.
    const QStringList lines = (fits ? text : escaped(text)).split(u'\r');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (i > 0) writer.writeEntityReference(QStringLiteral("#13"));
        writer.writeCharacters(lines[i]);
    }
    writer.writeEndElement();
}

Result<XmlElement> readXml(const QByteArray& document, QLatin1String root, const QString& fileName) {
    const auto [refused, at] = refusal(document);
    if (!refused.isNull()) return failAtLine(fileName, document.first(at).count('\n') + 1, refused);
    QXmlStreamReader reader(document);
    reader.setNamespaceProcessing(false);
    TreeBuilder tree;
    while (!reader.atEnd()) {
        reader.readNext();
        const QString wrong = tree.take(reader);
        if (!wrong.isNull()) return failAtLine(fileName, reader.lineNumber(), wrong);
    }
    if (reader.hasError()) return failAtLine(fileName, reader.lineNumber(), reader.errorString());
    XmlElement element = tree.takeRoot();
    if (element.name.compare(root, Qt::CaseInsensitive) != 0) {
        return failAtLine(fileName, element.line,
                          Words::tr("the file's root is “%1” instead of “%2”").arg(element.name, root));
    }
    return element;
}

Result<QByteArray> readXmlFile(const QString& path) {
    if (!QFileInfo(path).isFile()) {
        return fail(ErrorCode::NotFound, Words::tr("There is no file “%1”.").arg(path), path);
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return fail(ErrorCode::InvalidFile,
                    Words::tr("“%1” cannot be read: %2").arg(path, file.errorString()), path);
    }
    if (file.size() > MaximumXmlSize) return failAtLine(path, 1, Words::tr("the file is too large"));
    return file.readAll();
}

tl::unexpected<Error> failAtLine(const QString& fileName, qint64 line, const QString& what) {
    return fail(ErrorCode::InvalidFile,
                Words::tr("%1, line %2: %3").arg(fileName, QString::number(line), what), fileName);
}

bool toBool(const QString& text, bool fallback) {
    const QString word = text.trimmed();
    if (word.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0) return true;
    if (word.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0) return false;
    return toInteger(word, fallback ? 1 : 0) != 0;
}

qint64 toInteger(const QString& text, qint64 fallback) {
    bool isNumber = false;
    const qint64 whole = text.toLongLong(&isNumber);
    if (isNumber) return whole;
    const double number = text.toDouble(&isNumber);
    if (!isNumber && !std::isinf(number)) return fallback;
    if (std::isnan(number)) return fallback;
    constexpr double Limit = 9.2e18;
    if (number >= Limit) return std::numeric_limits<qint64>::max();
    if (number <= -Limit) return std::numeric_limits<qint64>::min();
    return static_cast<qint64>(number);
}

}  // namespace zelto
