// SPDX-License-Identifier: GPL-3.0-or-later
// The main window: the photo list on the left, the preview in the middle, on the right the watermark list above the
// inspector, one toolbar, and the menus. It owns the document, the controllers and the views, connects them, and decides
// what can be done when. Main thread only.
#pragma once

#include "app/common/my_global_instance.h"
#include "app/photos/image_list_controller.h"
#include "app/photos/photo_panel.h"
#include "app/preview/photo_preview.h"
#include "app/preview/preview_pages.h"
#include "app/preview/preview_view.h"
#include "app/watermarks/watermark_controller.h"
#include "app/watermarks/watermark_document.h"
#include "app/watermarks/watermark_editors.h"
#include "app/window/dialog_set.h"
#include "app/window/empty_state.h"
#include "app/window/inspector.h"
#include "app/window/main_view.h"
#include "app/window/processing_bar.h"
#include "app/window/result_bar.h"
#include "app/window/stack_keeper.h"
#include "app/window/watermark_panel.h"
#include "app/window/window_actions.h"
#include "app/window/zelto_controller.h"

#include <QMainWindow>

class QLabel;
class QPushButton;
class QSplitter;
class QStackedWidget;

namespace zelto {

class StackFaces;

class MainWindow : public QMainWindow {
    Q_OBJECT

  public:
    // `shared` outlives the window.
    MainWindow(MyGlobalInstance& shared, DialogSet dialogs, EditorSet editors);
    ~MainWindow() override;

    WatermarkDocument& document() { return document_; }
    ImageListController& photos() { return photos_; }
    WatermarkController& watermarks() { return watermarks_; }
    WatermarkEditors& editors() { return editors_; }
    ZeltoController& controller() { return *controller_; }
    PhotoPreview& preview() { return *preview_; }
    PreviewView& previewView() { return *previewView_; }
    PreviewPages& pages() { return *pages_; }
    PhotoPanel& photoPanel() { return *photoPanel_; }
    PhotoListView& photoList() { return photoPanel_->list(); }
    PhotoFilterBox& photoFilter() { return photoPanel_->filter(); }
    WatermarkListView& watermarkList() { return watermarkPanel_->list(); }
    Inspector& inspector() { return *inspector_; }
    MainView& mainView() { return *mainView_; }
    WindowActions& actions() { return *actions_; }
    ProcessingBar& processing() { return *processing_; }
    ResultBar& result() { return *result_; }
    StackKeeper& keeper() { return *keeper_; }
    EmptyState& welcome() { return *welcome_; }

    // What a run does to the controls: those that change anything are off while it is under way.
    void EnableControls();
    void DisableControls();
    void ShowProcessingControls();
    void HideProcessingControls();
    // Asks `mayClose` before the window closes; no means that it stays.
    void setCloseQuestion(std::function<bool()> mayClose) { mayClose_ = std::move(mayClose); }

    // Switches controls by whether there are photos, rows and a run.
    void EnableDisableWatermarkControls();
    void showPage(bool hasPhotos, bool showsSample);

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void layOut();
    void makeToolBar();
    void connectActions();
    void connectViews();
    void offer(QAction& action, bool hasStep, const QString& whyNot) const;
    void connectDialogs();
    void showStatus();
    void restorePlaces();
    void keepPlaces() const;

    WatermarkDocument document_;
    ImageListController photos_;
    WatermarkController watermarks_;
    WatermarkEditors editors_;
    WindowActions* actions_;
    PreviewView* previewView_;
    PhotoPreview* preview_;
    PreviewPages* pages_;
    ZeltoController* controller_;
    StackKeeper* keeper_;
    MainView* mainView_;
    // Tab comes to these before the columns, and to a page of the inspector, which is made later, after them.
    QPushButton* start_;
    ResultBar* result_;
    ProcessingBar* processing_;
    PhotoPanel* photoPanel_;
    WatermarkPanel* watermarkPanel_;
    Inspector* inspector_;
    StackFaces* faces_;
    QSplitter* columns_;
    QSplitter* stackColumn_;
    QStackedWidget* middle_;
    EmptyState* welcome_ = nullptr;
    QWidget* sampleBar_ = nullptr;  // above the sample photo
    QLabel* photoCount_;
    QLabel* zoom_;
    QAction* undo_;
    QAction* redo_;
    std::function<bool()> mayClose_;
    bool isRunning_ = false;
};

}  // namespace zelto
