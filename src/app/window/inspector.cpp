// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/inspector.h"

#include "app/common/icons.h"
#include "app/photos/image_list_controller.h"
#include "app/watermarks/watermark_controller.h"
#include "app/window/watermark_panel.h"

#include <QApplication>
#include <QComboBox>
#include <QDial>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace zelto {
namespace {

// Whether what has been typed into `field` can be undone or redone there.
bool hasOwnHistory(const QObject& field, bool redo) {
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(&field)) {
        return redo ? text->document()->isRedoAvailable() : text->document()->isUndoAvailable();
    }
    const auto* line = qobject_cast<const QLineEdit*>(&field);
    if (line == nullptr) line = field.findChild<QLineEdit*>();
    return line != nullptr && (redo ? line->isRedoAvailable() : line->isUndoAvailable());
}

bool turnsWithWheel(const QObject& field) {
    return qobject_cast<const QComboBox*>(&field) != nullptr ||
           qobject_cast<const QSlider*>(&field) != nullptr || qobject_cast<const QDial*>(&field) != nullptr;
}

// Scrolls up and down only, since it is never narrower than its page; but in a small window it may be. The wheel scrolls
// it across what stands in the way, and changes only what has the focus.
class PageArea : public QScrollArea {
  public:
    PageArea(QWidget* page, QWidget* parent) : QScrollArea(parent) {
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidget(page);
        for (auto* field : page->findChildren<QWidget*>()) {
            if (!turnsWithWheel(*field)) continue;
            if (field->focusPolicy() == Qt::WheelFocus) field->setFocusPolicy(Qt::StrongFocus);
            field->installEventFilter(this);
        }
    }

    QSize minimumSizeHint() const override {
        constexpr int Height = 60;
        constexpr int NarrowPage = 300;
        const int page = widget()->minimumSizeHint().width();
        return {std::min(page, isSmall() ? NarrowPage : page) + verticalScrollBar()->sizeHint().width(),
                Height};
    }

  protected:
    void resizeEvent(QResizeEvent* event) override {
        QScrollArea::resizeEvent(event);
        if (std::exchange(wasSmall_, isSmall()) != isSmall()) updateGeometry();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
        if (event->type() == QEvent::Wheel && turnsWithWheel(*watched) &&
            !static_cast<QWidget*>(watched)->hasFocus()) {
            event->ignore();
            return true;
        }
        return QScrollArea::eventFilter(watched, event);
    }

  private:
    bool isSmall() const {
        constexpr int SmallWindow = 720;
        return window()->width() < SmallWindow;
    }

    bool wasSmall_ = false;
};

}  // namespace

Inspector::Inspector(WatermarkController& watermarks, const ImageListController& photos,
                     WatermarkEditors& editors, QWidget* parent)
    : QWidget(parent),
      watermarks_(watermarks),
      editors_(editors),
      title_(makeHeading({}, this)),
      revert_(new QToolButton(this)),
      stack_(new QStackedWidget(this)) {
    setObjectName(QStringLiteral("Inspector"));
    layOut();
    connect(revert_, &QToolButton::clicked, this, [this] {
        if (page_ != nullptr) page_->revert();
    });
    connect(&editors_, &WatermarkEditors::subjectChanged, this, &Inspector::showSubject);
    connect(&editors_, &WatermarkEditors::opened, this, &Inspector::comeForward);
    connect(&watermarks_.document(), &WatermarkDocument::changed, this, [this] {
        if (page_ != nullptr) page_->load();
        showState();
    });
    connect(&photos, &ImageListController::photoSelected, this, [this] {
        if (page_ != nullptr) page_->showFor(editors_.photo());
    });
    connect(qApp, &QApplication::focusChanged, this, &Inspector::followFocus);
    showSubject();
}

Inspector::~Inspector() {
    qApp->disconnect(this);
}

void Inspector::layOut() {
    revert_->setObjectName(QStringLiteral("Revert"));
    revert_->setIcon(lineIcon(QLatin1String("revert")));
    revert_->setAutoRaise(true);
    revert_->setToolTip(tr("Revert: take back everything that was changed since this was selected"));
    revert_->setAccessibleName(tr("Revert"));
    auto* head = new QHBoxLayout;
    head->setContentsMargins(0, 0, 6, 0);
    head->addWidget(title_, 1);
    head->addWidget(revert_);
    auto* hint = new QLabel(
        tr("Select a watermark in the list above or on the photo, and what it looks like and where it "
           "stands can be changed here."),
        stack_);
    hint->setWordWrap(true);
    hint->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    hint->setContentsMargins(10, 0, 10, 10);
    stack_->addWidget(new PageArea(hint, stack_));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(head);
    column->addWidget(stack_, 1);
    setMinimumHeight(72);
}

EditorPage* Inspector::pageOf(EditorKind kind) {
    EditorPage*& page = pages_[kind];
    if (page == nullptr && editors_.canOpen(kind)) {
        page = editors_.editors().at(kind).makePage(watermarks_);
        if (page == nullptr) return nullptr;
        // Left to the page, Tab would pass over what stands before the field it begins with.
        starts_[page] = page->focusProxy();
        page->setFocusProxy(nullptr);
        stack_->addWidget(new PageArea(page, stack_));
    }
    return page;
}

void Inspector::showSubject() {
    const std::optional<WatermarkEditors::Subject>& subject = editors_.subject();
    const bool hadFocus =
        page_ != nullptr && window()->focusWidget() != nullptr && isAncestorOf(window()->focusWidget());
    if (page_ != nullptr) page_->end();
    page_ = subject ? pageOf(subject->kind) : nullptr;
    if (page_ != nullptr) {
        page_->showFor(editors_.photo());
        page_->begin(subject->watermark);
        stack_->setCurrentWidget(page_->parentWidget()->parentWidget());
    } else {
        stack_->setCurrentIndex(0);
        if (hadFocus) Q_EMIT left();
    }
    title_->setText(page_ != nullptr ? page_->windowTitle() : tr("Nothing selected"));
    showState();
}

void Inspector::showState() {
    revert_->setVisible(page_ != nullptr);
    revert_->setEnabled(page_ != nullptr && page_->hasChanged());
}

void Inspector::comeForward() {
    if (page_ == nullptr) return;
    auto* area = static_cast<QScrollArea*>(stack_->currentWidget());
    area->verticalScrollBar()->setValue(0);
    QWidget* start = starts_.at(page_);
    if (start != nullptr) start->setFocus(Qt::OtherFocusReason);
    // What something new begins with is typed over.
    if (auto* text = qobject_cast<QPlainTextEdit*>(start); text != nullptr && editors_.isNew()) {
        text->selectAll();
    }
}

// Whoever has been elsewhere in the window begins another undo step.
void Inspector::followFocus(QWidget* before, QWidget* now) {
    if (now == nullptr) return;
    if (isAncestorOf(now)) {
        now->installEventFilter(this);
    } else if (before != nullptr && isAncestorOf(before) && now->window() == window()) {
        watermarks_.beginSession();
    }
}

// A field that has nothing to undo leaves the key to the window.
bool Inspector::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool isRedo = key->matches(QKeySequence::Redo);
        if ((isRedo || key->matches(QKeySequence::Undo)) && !hasOwnHistory(*watched, isRedo)) {
            event->ignore();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

// Escape leaves the field; what was added and not touched since goes at once.
void Inspector::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (editors_.isNew() && page_ != nullptr && !page_->hasChanged()) editors_.takeAway();
    Q_EMIT left();
}

}  // namespace zelto
