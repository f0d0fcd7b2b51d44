// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of the watermark list: the photo filter when there is one, the copyright data when there is some,
// then the watermarks in drawing order. It follows the document row by row, so that views keep their selection and their
// place, and changes nothing itself: a click on a check box is handed on. A record that draws nothing on the selected
// photo carries a warning. Main thread only.
#pragma once

#include "app/watermarks/watermark_document.h"

#include <QAbstractListModel>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace zelto {

// The label of a watermark in the list.
QString watermarkLabel(const Watermark& watermark);

class WatermarkListModel : public QAbstractListModel {
    Q_OBJECT

  public:
    enum class RowKind { Filter, Metadata, Watermark };
    enum Role { WarningRole = Qt::UserRole };

    // Called with the row and the state its check box is to have.
    using Checked = std::function<void(int row, bool on)>;

    WatermarkListModel(WatermarkDocument& document, Checked checked, QObject* parent = nullptr);

    RowKind kindOf(int row) const;
    // The watermark of a row; negative for the filter and metadata rows.
    int watermarkOf(int row) const { return row - extraRows(); }
    int rowOf(int watermark) const { return watermark + extraRows(); }

    // Why watermarks draw nothing that can be seen on the selected photo: one text for each, empty where there is nothing
    // to tell. They count as long as the list has that many watermarks.
    void setWarnings(const QStringList& warnings);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    bool hasFilterRow() const { return shown_.SelectedFilter != 0; }
    bool hasMetadataRow() const { return shown_.Metadata.has_value(); }
    int extraRows() const { return (hasFilterRow() ? 1 : 0) + (hasMetadataRow() ? 1 : 0); }
    const Watermark& watermarkAt(int row) const;
    QString label(int row) const;
    QString warning(int row) const;
    QImage drawing(int row) const;
    bool isOn(int row) const;
    void follow();
    void announceAll();
    template <class Show>
    void insertRows(int row, int count, Show show);
    template <class Show>
    void removeRows(int row, int count, Show show);
    void followWatermarks(const std::vector<Watermark>& now);

    WatermarkDocument& document_;
    Checked checked_;
    QStringList warnings_;
    StackState shown_;  // what the rows show; differs from the document only while following it
};

}  // namespace zelto
