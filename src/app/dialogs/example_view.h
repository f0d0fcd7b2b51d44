// SPDX-License-Identifier: GPL-3.0-or-later
// What the selected photo would become: the name of its output, its size and its folder, shortened to the
// room there is. Main thread only.
#pragma once

#include "batch/output_example.h"

#include <QFrame>

class QLabel;

namespace zelto {

class ExampleView : public QFrame {
    Q_OBJECT

  public:
    explicit ExampleView(QWidget* parent = nullptr);

    // An empty path means that no photo is selected, an invalid size one that cannot be read.
    void setExample(const OutputExample& example);

    QString name() const { return name_; }
    QString details() const { return details_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void elide();

    QString name_;
    QString details_;
    QLabel* nameLabel_;
    QLabel* detailsLabel_;
};

}  // namespace zelto
