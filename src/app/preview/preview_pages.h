// SPDX-License-Identifier: GPL-3.0-or-later
// The middle of the window: the canvas with the selected photo or, in its place, the contact view. Main thread only.
#pragma once

#include "app/preview/contact_view.h"

#include <QStackedWidget>

namespace zelto {

class ImageListController;
class PhotoPreview;
class PreviewView;
class WatermarkDocument;

class PreviewPages : public QStackedWidget {
    Q_OBJECT

  public:
    // All outlive it, but for the canvas, which it takes.
    PreviewPages(ImageListController& photos, WatermarkDocument& document, PhotoPreview& preview,
                 PreviewView& canvas, QWidget* parent = nullptr);

    void showContacts(bool on);
    bool showsContacts() const;
    // Shows the photo, or the nine, without watermarks, or with them again.
    void setBare(bool isBare);
    ContactView& contacts() { return *contacts_; }

  Q_SIGNALS:
    void contactsShown(bool on);

  private:
    PhotoRequest requestFor(int row) const;
    void showRows();

    ImageListController& photos_;
    PhotoPreview& preview_;
    PreviewView& canvas_;
    ContactView* contacts_;
    bool isBare_ = false;
};

}  // namespace zelto
