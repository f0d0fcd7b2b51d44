// SPDX-License-Identifier: GPL-3.0-or-later
// The photo list as the window's views see it. It holds the list and changes it only in whole steps that
// views can follow; which steps a user may take, and undo, are the controller's business. Main thread only.
#pragma once

#include "batch/image_list.h"

#include <QAbstractListModel>
#include <QString>

#include <vector>

namespace zelto {

// How a run left the photo of a row.
struct RowOutcome {
    int row = 0;
    PhotoStatus status = PhotoStatus::NotProcessed;
    QString errorMessage;
    QStringList warnings = {};
};

class PhotoListModel : public QAbstractListModel {
    Q_OBJECT

  public:
    // FolderRole is the name of the photo's folder, where photos came from several; empty where all came from one.
    enum Role { PathRole = Qt::UserRole, FolderRole, StatusRole, ErrorRole, WarningsRole };

    using QAbstractListModel::QAbstractListModel;

    const std::vector<Image>& images() const { return list_.images(); }
    const ImageList& list() const { return list_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    void insert(const ImageList::Placed& photos);
    ImageList::Placed take(const std::vector<std::size_t>& rows);  // ascending

    void reorder(const PhotoOrder& order);

    std::vector<bool> checks() const;
    void setChecks(const std::vector<bool>& checks);

    // See ImageList.
    void setOutcome(int row, PhotoStatus status, const QString& errorMessage);
    void setOutcomes(const std::vector<RowOutcome>& outcomes);

  private:
    void announceAll();

    ImageList list_;
};

}  // namespace zelto
