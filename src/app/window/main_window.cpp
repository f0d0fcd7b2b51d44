// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/main_window.h"

#include "app/common/icons.h"
#include "app/common/sample_photo.h"
#include "app/preview/hold_key.h"
#include "app/watermarks/stack_faces.h"
#include "app/watermarks/watermark_delegate.h"
#include "app/window/disabled_scroll.h"
#include "app/window/photo_keys.h"
#include "app/window/stack_work.h"
#include "app/window/window_places.h"
#include "persistence/setting_file.h"
#include "platform/preferences.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace zelto {
namespace {

constexpr QSize StartSize(1280, 800);
constexpr int StatusMilliseconds = 8000;  // that a line stays in the status bar

QWidget* makeSpacer(QWidget* parent) {
    auto* spacer = new QWidget(parent);
    spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    return spacer;
}

// The one button that stands out.
void takeAccent(QPushButton& button, QPalette palette) {
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        // Styles lighten a button's colour; darkened, its text stays readable.
        palette.setColor(group, QPalette::Button, palette.color(QPalette::Highlight).darker(120));
        palette.setColor(group, QPalette::ButtonText, palette.color(QPalette::HighlightedText));
    }
    button.setPalette(palette);
}

QString photoCount(int count) {
    return MainWindow::tr("%Ln photo(s)", nullptr, count);
}

}  // namespace

MainWindow::MainWindow(MyGlobalInstance& shared, DialogSet dialogs, EditorSet editors)
    : photos_(document_.history()),
      watermarks_(document_),
      editors_(watermarks_, photos_, std::move(editors), this),
      actions_(new WindowActions(this)),
      previewView_(new PreviewView(this)),
      preview_(new PhotoPreview(photos_, watermarks_, *previewView_, this)),
      pages_(new PreviewPages(photos_, document_, *preview_, *previewView_, this)),
      controller_(new ZeltoController(photos_, watermarks_, *preview_, shared, std::move(dialogs), this)),
      keeper_(new StackKeeper(watermarks_, shared, this)),
      mainView_(new MainView(this)),
      start_(new QPushButton(this)),
      result_(new ResultBar(this)),
      processing_(new ProcessingBar(this)),
      photoPanel_(
          new PhotoPanel(photos_, {(*actions_)[Act::SortByName], (*actions_)[Act::SortByDate]}, this)),
      watermarkPanel_(new WatermarkPanel(watermarks_, editors_, *actions_, *keeper_, this)),
      inspector_(new Inspector(watermarks_, photos_, editors_, this)),
      faces_(
          new StackFaces(watermarks_, qRound(WatermarkDelegate::PortraitSide * devicePixelRatioF()), this)),
      columns_(new QSplitter(this)),
      stackColumn_(new QSplitter(Qt::Vertical, this)),
      middle_(new QStackedWidget(this)),
      photoCount_(new QLabel(this)),
      zoom_(new QLabel(this)),
      undo_(document_.history().createUndoAction(this, tr("&Undo"))),
      redo_(document_.history().createRedoAction(this, tr("&Redo"))) {
    setWindowTitle(QStringLiteral("Zelto"));
    setWindowIcon(applicationIcon());
    setAcceptDrops(true);
    mainView_->setDelegate([this](const QStringList& paths) { controller_->bringFiles(paths); });
    connectActions();
    connectDialogs();
    connectStack(
        {.window = *this,
         .actions = *actions_,
         .watermarks = watermarks_,
         .keeper = *keeper_,
         .panel = *watermarkPanel_,
         .preview = *previewView_,
         .photos = photoPanel_->list(),
         .dialogs = controller_->dialogs(),
         .shared = shared,
         .tell = [this](const QString& text) { statusBar()->showMessage(text, StatusMilliseconds); },
         .addPhotos = [this](const QMimeData& files) { return mainView_->performDragOperation(files); }});
    actions_->fill(*menuBar(), undo_, redo_);
    makeToolBar();
    layOut();
    restorePlaces();

    connect(&photos_, &ImageListController::alert, this,
            [this](const QString& title, const QString& text) { showAlert(this, title, text); });
    connect(&photos_, &ImageListController::noted, this, [this](const QString& text) {
        constexpr int Milliseconds = 8000;
        statusBar()->showMessage(text, Milliseconds);
    });
    new PhotoKeys(this);
    new DisabledScroll(watermarkList());
    const PhotoListModel& photoRows = photos_.model();
    connect(&photoRows, &QAbstractItemModel::dataChanged, this, &MainWindow::showStatus);
    connect(&photoRows, &QAbstractItemModel::rowsInserted, this, &MainWindow::showStatus);
    connect(&photoRows, &QAbstractItemModel::rowsRemoved, this, &MainWindow::showStatus);
    connect(&photoRows, &QAbstractItemModel::modelReset, this, &MainWindow::showStatus);
    // Every change of the photos and of the stack is a step of the history.
    connect(&document_.history(), &QUndoStack::indexChanged, this,
            &MainWindow::EnableDisableWatermarkControls);
    connect(&watermarks_.selection(), &QItemSelectionModel::selectionChanged, this,
            &MainWindow::EnableDisableWatermarkControls);
    connect(previewView_, &PreviewView::layerActivated, this,
            [this](int index) { editors_.WatermarkListDoubleClicked(watermarks_.model().rowOf(index)); });
    connect(inspector_, &Inspector::left, &watermarkList(), [this] { watermarkList().setFocus(); });
    connect(previewView_, &PreviewView::scaleChanged, this, &MainWindow::showStatus);
    connect(preview_, &PhotoPreview::shown, this, &MainWindow::showStatus);
    connect(preview_, &PhotoPreview::shown, this, [this] { faces_->setPhoto(preview_->shownContext()); });
    connect(keeper_, &StackKeeper::changed, this, &MainWindow::EnableDisableWatermarkControls);
    EnableDisableWatermarkControls();
    showStatus();
    welcome_->setFocus();
}

MainWindow::~MainWindow() {
    document_.history().disconnect(this);
    watermarks_.selection().disconnect(this);
    photos_.model().disconnect(this);
    // Whatever refers to the document and the photo list goes before them.
    delete takeCentralWidget();
    delete faces_;
    delete keeper_;
    delete controller_;
    delete preview_;
}

// ---- building

void MainWindow::connectActions() {
    const auto on = [this](Act act, auto* object, auto member) {
        actions_->connectTo(act, [object, member] { (object->*member)(); });
    };
    on(Act::AddPhotos, controller_, &ZeltoController::Addimages);
    on(Act::RemovePhoto, &photos_, &ImageListController::RemoveSelectedImage);
    on(Act::RemoveAllPhotos, &photos_, &ImageListController::RemoveAllImages);
    on(Act::CheckAll, &photos_, &ImageListController::CheckAllImages);
    on(Act::UncheckAll, &photos_, &ImageListController::UncheckAllImages);
    on(Act::ToggleCheck, &photos_, &ImageListController::ToggleCheck);
    on(Act::SortByName, controller_, &ZeltoController::sortByName);
    on(Act::SortByDate, controller_, &ZeltoController::sortByDateTaken);
    on(Act::FindPhotos, photoPanel_, &PhotoPanel::find);
    actions_->connectTo(Act::NextPhoto, [this] { photos_.step(1); });
    actions_->connectTo(Act::PreviousPhoto, [this] { photos_.step(-1); });
    connectViews();
    on(Act::FullScreen, controller_, &ZeltoController::ShowFullScreenImage);
    on(Act::Quit, static_cast<QWidget*>(this), &QWidget::close);
    on(Act::EditWatermark, &editors_, &WatermarkEditors::editSelected);
    actions_->connectTo(Act::About, [this] {
        QMessageBox::about(
            this, tr("About Zelto"),
            tr("<h3>Zelto %1</h3><p>Watermarks for batches of photos.</p>"
               "<p>Free software under the GNU General Public License, version 3 or later.</p>")
                .arg(QStringLiteral(ZELTO_VERSION)));
    });

    struct Opener {
        Act act;
        EditorKind kind;
        void (WatermarkEditors::*open)();
    };
    constexpr Opener Openers[] = {
        {Act::AddImage, EditorKind::Image, &WatermarkEditors::OpenImageWatermarkSettings},
        {Act::AddText, EditorKind::Text, &WatermarkEditors::OpenTextWatermarkSettings},
        {Act::AddShape, EditorKind::Shape, &WatermarkEditors::OpenShapeWatermarkSettings},
        {Act::AddQrCode, EditorKind::QrCode, &WatermarkEditors::AddQrCode},
        {Act::AddFilter, EditorKind::Filter, &WatermarkEditors::OpenFilterWindow},
        {Act::AddEffects, EditorKind::Effects, &WatermarkEditors::OpenEffectsSettings},
        {Act::AddCopyright, EditorKind::Copyright, &WatermarkEditors::OpenMetadataWindow},
    };
    for (const Opener& opener : Openers) {
        if (editors_.canOpen(opener.kind)) on(opener.act, &editors_, opener.open);
    }

    photoList().addAction((*actions_)[Act::RemovePhoto]);
    undo_->setShortcut(QKeySequence::Undo);
    undo_->setIcon(lineIcon(QLatin1String("undo")));
    redo_->setShortcut(QKeySequence::Redo);
    redo_->setIcon(lineIcon(QLatin1String("redo")));
}

void MainWindow::connectViews() {
    QAction* contacts = (*actions_)[Act::Contacts];
    contacts->setCheckable(true);
    actions_->connectTo(Act::Contacts, [this, contacts] { pages_->showContacts(contacts->isChecked()); });
    connect(pages_, &PreviewPages::contactsShown, contacts, &QAction::setChecked);
    // What is zoomed is seen.
    const auto zoom = [this](Act act, auto how) {
        actions_->connectTo(act, [this, how] {
            pages_->showContacts(false);
            std::invoke(how, previewView_);
        });
    };
    zoom(Act::ZoomIn, &PreviewView::ZoomIn);
    zoom(Act::ZoomOut, &PreviewView::ZoomOut);
    zoom(Act::FitToScreen, &PreviewView::FittoScreen);
    zoom(Act::ActualSize, &PreviewView::ActualSize);
    QAction* before = (*actions_)[Act::Before];
    before->setCheckable(true);
    auto* key = new HoldKey(Qt::Key_F8, this);
    const auto show = [this, before, key] { pages_->setBare(before->isChecked() || key->isHeld()); };
    actions_->connectTo(Act::Before, show);
    connect(key, &HoldKey::held, this, show);
}

// What there is a dialog for can be done.
void MainWindow::connectDialogs() {
    const DialogSet& dialogs = controller_->dialogs();
    if (dialogs.chooseFolder) {
        actions_->connectTo(Act::AddFolder, [this] { controller_->OpenAddFolderWindow(); });
    }
    if (dialogs.outputOptions) actions_->connectTo(Act::Start, [this] { controller_->StartWatermarking(); });
    if (dialogs.guide) actions_->connectTo(Act::Guide, [this, &dialogs] { dialogs.guide(this); });
    if (dialogs.tips) actions_->connectTo(Act::Tips, [this] { controller_->ShowTips(); });
    if (dialogs.versionCheck) {
        actions_->connectTo(Act::VersionCheck, [this] { controller_->CheckLatestVersion(); });
    }
    if (dialogs.openSettings) {
        actions_->connectTo(Act::OpenSettings, [this, &dialogs] { dialogs.openSettings(this, watermarks_); });
    }
    if (dialogs.importSettings) {
        actions_->connectTo(Act::ImportSettings, [this, &dialogs] { dialogs.importSettings(this); });
    }
    if (dialogs.exportSettings) {
        actions_->connectTo(Act::ExportSettings, [this, &dialogs] { dialogs.exportSettings(this); });
    }
}

void MainWindow::makeToolBar() {
    QToolBar* bar = addToolBar(tr("Toolbar"));
    bar->setObjectName(QStringLiteral("Toolbar"));
    bar->setMovable(false);
    bar->setIconSize({22, 22});
    const auto add = [&](std::initializer_list<Act> acts) {
        for (const Act act : acts) bar->addAction((*actions_)[act]);
    };
    add({Act::AddPhotos, Act::AddFolder, Act::RemovePhoto});
    bar->addSeparator();
    bar->addActions({undo_, redo_});
    bar->addWidget(makeSpacer(bar));
    add({Act::ZoomOut, Act::ZoomIn, Act::FitToScreen, Act::ActualSize, Act::FullScreen});
    bar->addSeparator();
    add({Act::Contacts, Act::Before});
    bar->addWidget(makeSpacer(bar));

    const QAction* start = (*actions_)[Act::Start];
    start_->setObjectName(QStringLiteral("StartWatermark"));
    start_->setText(tr("Start"));
    start_->setIcon(accentIcon(QLatin1String("start")));
    takeAccent(*start_, palette());
    start_->setAccessibleName(tr("Start Watermarking"));
    QFont bold = start_->font();
    bold.setBold(true);
    start_->setFont(bold);
    start_->setIconSize({18, 18});
    start_->setMinimumSize(110, 34);
    connect(start_, &QPushButton::clicked, start, &QAction::trigger);
    const auto follow = [this, start] {
        start_->setEnabled(start->isEnabled());
        start_->setToolTip(start->toolTip());
    };
    connect(start, &QAction::changed, start_, follow);
    follow();
    bar->addWidget(start_);
}

void MainWindow::layOut() {
    const auto addReadyMade = [this](int place) { watermarks_.addReadyMade(place); };
    welcome_ =
        new EmptyState((*actions_)[Act::AddPhotos], (*actions_)[Act::AddFolder], addReadyMade, middle_);
    // It may be larger than a small screen has room for.
    auto* beginning = new QScrollArea(middle_);
    beginning->setFrameShape(QFrame::NoFrame);
    beginning->setFocusPolicy(Qt::NoFocus);
    beginning->setWidgetResizable(true);
    beginning->setWidget(welcome_);
    middle_->addWidget(beginning);
    auto* picture = new QWidget(middle_);
    auto* pictureRows = new QVBoxLayout(picture);
    pictureRows->setContentsMargins(0, 0, 0, 0);
    pictureRows->setSpacing(0);
    sampleBar_ = makeSampleBar((*actions_)[Act::AddPhotos], picture);
    pictureRows->addWidget(sampleBar_);
    pictureRows->addWidget(pages_, 1);
    middle_->addWidget(picture);

    columns_->addWidget(photoPanel_);
    columns_->addWidget(middle_);
    stackColumn_->addWidget(watermarkPanel_);
    stackColumn_->addWidget(inspector_);
    stackColumn_->setStretchFactor(1, 1);
    stackColumn_->setChildrenCollapsible(false);
    stackColumn_->setSizes({300, 360});
    columns_->addWidget(stackColumn_);
    columns_->setStretchFactor(1, 1);
    columns_->setChildrenCollapsible(false);
    columns_->setHandleWidth(1);
    columns_->setSizes({260, 656, 364});

    auto* rows = new QVBoxLayout(mainView_);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(columns_, 1);
    rows->addWidget(result_);
    rows->addWidget(processing_);
    setCentralWidget(mainView_);
    // Tab follows the columns, however late their parts were made.
    setTabOrder(&photoList(), previewView_);
    statusBar()->addWidget(photoCount_, 1);
    statusBar()->addPermanentWidget(zoom_);
}

// ---- state

void MainWindow::EnableDisableWatermarkControls() {
    const bool hasPhotos = photos_.count() > 0;
    const bool hasStack = hasAnythingToSave(document_.state().Stack);
    const bool hasRows = watermarks_.model().rowCount() > 0;
    // Watermarks can be made before there are photos to put them on.
    const bool showsSample = !hasPhotos && (hasStack || hasRows);
    actions_->update({.hasPhotos = hasPhotos,
                      .hasFailed = photos_.hasPhotosFor(PhotoFilter::Failed),
                      .hasPicture = hasPhotos || showsSample,
                      .hasStack = hasStack,
                      .hasSetting = keeper_->mayLoadAtStart(),
                      .hasRows = hasRows,
                      .hasSelectedRow = watermarks_.selectedRow() >= 0,
                      .hasSelectedMark = !watermarks_.selectedWatermarks().empty(),
                      .isIdle = !isRunning_,
                      .hasRun = processing_->isVisibleTo(mainView_)});
    preview_->showSample(showsSample ? samplePhotoPath() : QString());
    sampleBar_->setVisible(showsSample);
    // Without photos the welcome offers them.
    watermarkPanel_->offerReadyMade(hasPhotos && !hasRows);
    setWindowTitle(keeper_->name().isEmpty() ? QStringLiteral("Zelto")
                                             : tr("%1[*] – Zelto").arg(keeper_->name()));
    setWindowModified(keeper_->isChanged());
    showPage(hasPhotos, showsSample);
    photoPanel_->setReadOnly(isRunning_);
    stackColumn_->setEnabled(!isRunning_);
    if (isRunning_) pages_->showContacts(false);
    previewView_->setEnabled(!isRunning_);
    offer(*undo_, document_.history().canUndo(), tr("There is nothing to undo"));
    offer(*redo_, document_.history().canRedo(), tr("There is nothing to redo"));
}

// Without a tooltip of its own an action is told by its text, which names the step.
void MainWindow::offer(QAction& action, bool hasStep, const QString& whyNot) const {
    action.setEnabled(hasStep && !isRunning_);
    action.setToolTip(isRunning_ ? WindowActions::tr("Not while photos are being watermarked")
                      : hasStep  ? QString()
                                 : whyNot);
}

// Whoever has answered the welcome with the keyboard goes on in the list that is no longer empty.
void MainWindow::showPage(bool hasPhotos, bool showsSample) {
    enum Page { Welcome, Picture };
    const Page page = hasPhotos || showsSample ? Picture : Welcome;
    if (page == middle_->currentIndex()) return;
    const QWidget* focus = focusWidget();
    const bool wasHere = focus == nullptr || middle_->isAncestorOf(focus);
    middle_->setCurrentIndex(page);
    if (!wasHere) return;
    QWidget* lists[] = {&photoList(), &watermarkList()};
    (page == Welcome ? welcome_ : lists[hasPhotos ? 0 : 1])->setFocus();
}

void MainWindow::EnableControls() {
    isRunning_ = false;
    EnableDisableWatermarkControls();
}

void MainWindow::DisableControls() {
    isRunning_ = true;
    EnableDisableWatermarkControls();
}

void MainWindow::ShowProcessingControls() {
    result_->hide();
    processing_->show();
    EnableDisableWatermarkControls();
}

void MainWindow::HideProcessingControls() {
    processing_->hide();
    EnableDisableWatermarkControls();
}

void MainWindow::showStatus() {
    const auto checked = std::count_if(photos_.images().begin(), photos_.images().end(),
                                       [](const Image& photo) { return photo.ApplyWatermark; });
    const int count = photos_.count();
    photoCount_->setText(count == 0 ? tr("No photos")
                                    : photoCount(count) + QStringLiteral(" · ") +
                                          tr("%Ln checked", nullptr, static_cast<int>(checked)));
    const auto& shown = previewView_->shown();
    const QString times = QStringLiteral(" × ");
    zoom_->setText(shown ? QString::number(shown->scene.photoSize.width()) + times +
                               QString::number(shown->scene.photoSize.height()) + QStringLiteral(" · ") +
                               tr("%1 %").arg(std::lround(previewView_->scale() * 100.0))
                         : QString());
}

void MainWindow::restorePlaces() {
    restoreWindow(*this, storedPreference(preference::WindowGeometry), StartSize);
    restoreColumns(*columns_, storedPreference(preference::WindowColumns), width());
    if (const auto rows = storedPreference(preference::WindowStackColumn)) stackColumn_->restoreState(*rows);
}

void MainWindow::keepPlaces() const {
    setPreference(preference::WindowGeometry, saveGeometry());
    setPreference(preference::WindowColumns, columns_->saveState());
    setPreference(preference::WindowStackColumn, stackColumn_->saveState());
}

// ---- events

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!isRunning_ && mainView_->draggingEntered(*event->mimeData())) event->acceptProposedAction();
}

void MainWindow::dragLeaveEvent(QDragLeaveEvent* /*event*/) {
    mainView_->draggingExited();
}

void MainWindow::dropEvent(QDropEvent* event) {
    if (mainView_->performDragOperation(*event->mimeData())) event->acceptProposedAction();
}

// What no control has taken: Escape goes one step out, from something new by the summary of a run to nothing selected.
void MainWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape || isRunning_) {
        QMainWindow::keyPressEvent(event);
    } else if (editors_.isNew()) {
        editors_.takeAway();
    } else if (result_->isVisible()) {
        result_->hide();
    } else {
        editors_.close();
    }
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) takeAccent(*start_, palette());
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if ((mayClose_ && !mayClose_()) || !keeper_->mayClose()) {
        event->ignore();
        return;
    }
    keepPlaces();
    QMainWindow::closeEvent(event);
}

}  // namespace zelto
