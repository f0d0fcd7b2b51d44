// SPDX-License-Identifier: GPL-3.0-or-later
// Chooses which photos the list shows after a run. It is only there while photos have failed or were written with
// warnings. Main thread only.
#pragma once

#include <QComboBox>

namespace zelto {

class ImageListController;

class PhotoFilterBox : public QComboBox {
    Q_OBJECT

  public:
    // `photos` outlives it.
    explicit PhotoFilterBox(ImageListController& photos, QWidget* parent = nullptr);

  private:
    void follow();

    ImageListController& photos_;
};

}  // namespace zelto
