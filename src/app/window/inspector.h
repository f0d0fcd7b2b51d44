// SPDX-License-Identifier: GPL-3.0-or-later
// The lower half of the right column: the page of whatever is selected, which changes it while the photo is in view. It
// shows what the WatermarkEditors have as their subject and makes each page when it is first needed. Main thread only.
#pragma once

#include "app/watermarks/watermark_editors.h"

#include <QWidget>

#include <map>

class QLabel;
class QScrollArea;
class QStackedWidget;
class QToolButton;

namespace zelto {

class Inspector : public QWidget {
    Q_OBJECT

  public:
    // All outlive it.
    Inspector(WatermarkController& watermarks, const ImageListController& photos, WatermarkEditors& editors,
              QWidget* parent = nullptr);
    ~Inspector() override;

    // The page on show; null while nothing is edited.
    EditorPage* page() const { return page_; }

    // Gives the page the keyboard, from its top.
    void comeForward();

  Q_SIGNALS:
    // Escape was pressed in a field, or the page went that had the keyboard: it is to go back to the list.
    void left();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void layOut();
    void showSubject();
    void showState();
    void followFocus(QWidget* before, QWidget* now);
    EditorPage* pageOf(EditorKind kind);

    WatermarkController& watermarks_;
    WatermarkEditors& editors_;
    std::map<EditorKind, EditorPage*> pages_;
    std::map<const EditorPage*, QWidget*> starts_;  // the field that a page begins with
    EditorPage* page_ = nullptr;
    QLabel* title_;
    QToolButton* revert_;
    QStackedWidget* stack_;  // a hint, then a scroll area for each page
};

}  // namespace zelto
