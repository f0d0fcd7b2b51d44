// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/example_view.h"

#include "platform/path_parts.h"

#include <QGridLayout>
#include <QLabel>
#include <QStyle>

#include <utility>

namespace zelto {
namespace {

QString sizeText(QSize size) {
    if (!size.isValid()) return ExampleView::tr("This photo cannot be read.");
    const QString pixels = ExampleView::tr("%1 × %2 pixels").arg(size.width()).arg(size.height());
    return size.isEmpty() ? ExampleView::tr("%1: no picture can have this size").arg(pixels) : pixels;
}

}  // namespace

ExampleView::ExampleView(QWidget* parent)
    : QFrame(parent), nameLabel_(new QLabel(this)), detailsLabel_(new QLabel(this)) {
    setFrameShape(QFrame::StyledPanel);
    auto* caption = new QLabel(tr("Example:"), this);
    QFont bold = font();
    bold.setBold(true);
    nameLabel_->setFont(bold);
    nameLabel_->setAccessibleName(tr("Example of an output"));
    auto* grid = new QGridLayout(this);
    grid->addWidget(caption, 0, 0);
    grid->addWidget(nameLabel_, 0, 1);
    grid->addWidget(detailsLabel_, 1, 1);
    grid->setColumnStretch(1, 1);
    for (QLabel* label : {nameLabel_, detailsLabel_}) {
        label->setTextFormat(Qt::PlainText);
        // Paths read from left to right, wherever they stand.
        label->setAlignment(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter);
        label->setLayoutDirection(Qt::LeftToRight);
        // A long name is shortened instead of widening the dialog.
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }
}

void ExampleView::setExample(const OutputExample& example) {
    if (example.path.isEmpty()) {
        name_ = tr("No photo is selected.");
        details_.clear();
    } else {
        name_ = lastPathComponent(example.path);
        const QString folder = withoutLastPathComponent(example.path);
        details_ = sizeText(example.size);
        if (!folder.isEmpty()) details_ = tr("%1, in %2").arg(details_, folder);
    }
    elide();
}

void ExampleView::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    elide();
}

void ExampleView::elide() {
    for (const auto& [label, text] : {std::pair(nameLabel_, &name_), std::pair(detailsLabel_, &details_)}) {
        label->setText(label->fontMetrics().elidedText(*text, Qt::ElideMiddle, label->width()));
        label->setToolTip(label->text() == *text ? QString() : *text);
    }
}

}  // namespace zelto
