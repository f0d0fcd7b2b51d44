// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of the watermark list: the photo filter when there is one, the copyright data when there is some, then the
// watermarks in drawing order. It follows the document row by row, so that views keep their selection and their place,
// and changes nothing itself: what the user does to rows is handed on. Each watermark has its label, which tells what
// the record holds; a name, as it reads on the selected photo or as the user calls it; a small picture of itself; and a
// warning where it draws nothing on that photo. Main thread only.
#pragma once

#include "app/watermarks/watermark_document.h"

#include <QAbstractListModel>
#include <QImage>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

class QMimeData;

namespace zelto {

// The label of a watermark in the list.
QString watermarkLabel(const Watermark& watermark);

// What a mark is and how it reads on the selected photo.
struct MarkFace {
    QImage portrait;  // square; null where the record draws nothing
    QString text;     // of a text or a code, with its macros expanded

    bool operator==(const MarkFace&) const = default;
};

class WatermarkListModel : public QAbstractListModel {
    Q_OBJECT

  public:
    enum class RowKind { Filter, Metadata, Watermark };
    // Qt::DisplayRole is the label, Qt::EditRole the name.
    enum Role { WarningRole = Qt::UserRole, NameRole, PortraitRole };

    // What the user does to rows; watermarks are meant by their index.
    struct Hands {
        std::function<void(int row, bool on)> checked;
        std::function<void(int watermark, const QString& name)> renamed;
        std::function<void(const std::vector<int>& watermarks, int before)> moved;
        // Something from elsewhere is let go over the list; false where it is of no use.
        std::function<bool(const QMimeData& data, int before)> dropped;
    };

    WatermarkListModel(WatermarkDocument& document, Hands hands, QObject* parent = nullptr);

    RowKind kindOf(int row) const;
    // The watermark of a row; negative for the filter and metadata rows.
    int watermarkOf(int row) const { return row - extraRows(); }
    int rowOf(int watermark) const { return watermark + extraRows(); }
    // Whether the eye of a row is open.
    bool isOn(int row) const;

    // Why watermarks draw nothing that can be seen on the selected photo: one text for each, empty where there is
    // nothing to tell. They count as long as the list has that many watermarks; so do the faces.
    void setWarnings(const QStringList& warnings);
    void setFaces(const std::vector<MarkFace>& faces);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction | Qt::CopyAction; }
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

  private:
    bool hasFilterRow() const { return filterOf(shown_.Stack) != 0; }
    bool hasMetadataRow() const { return shown_.Metadata.has_value(); }
    int extraRows() const { return (hasFilterRow() ? 1 : 0) + (hasMetadataRow() ? 1 : 0); }
    const Watermark& watermarkAt(int row) const;
    QString label(int row) const;
    QString name(int row) const;
    QString warning(int row) const;
    const MarkFace* face(int row) const;
    QImage drawing(int row) const;
    void follow();
    void announceAll();
    template <class Show>
    void insertRows(int row, int count, Show show);
    template <class Show>
    void removeRows(int row, int count, Show show);
    static std::optional<std::vector<int>> strangers(const std::vector<Watermark>& fewer,
                                                     const std::vector<Watermark>& more);
    void followWatermarks(const std::vector<Watermark>& now);
    void followOrder(const std::vector<Watermark>& now);

    WatermarkDocument& document_;
    Hands hands_;
    QStringList warnings_;
    std::vector<MarkFace> faces_;
    StackState shown_;  // what the rows show; differs from the document only while following it
};

}  // namespace zelto
