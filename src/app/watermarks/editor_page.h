// SPDX-License-Identifier: GPL-3.0-or-later
// A page of the inspector: an editor without the frame around it. It is made once for each kind of editor and is then
// visited: from begin() to end() it shows and changes one watermark, or one thing that belongs to the photo as a whole.
// Every change reaches the document at once, so that the preview follows, and all changes of a visit are one undo step.
// Main thread only.
#pragma once

#include <QString>
#include <QWidget>

namespace zelto {

// The photo that macros and shares of "the photo" refer to.
struct SelectedPhoto {
    QString path;  // empty for none
    qint64 row = 0;

    bool operator==(const SelectedPhoto&) const = default;
};

// The step to hand to the controller with each change that a page makes.
inline QString visitStep() {
    return QStringLiteral("visit");
}

class EditorPage : public QWidget {
    Q_OBJECT

  public:
    // `name` stands for this kind of page; `title` is what the inspector calls it. The control that is to have the
    // keyboard at first is the page's focus proxy.
    EditorPage(const QString& name, const QString& title) {
        setObjectName(name);
        setWindowTitle(title);
    }

    // Begins a visit to the watermark at `index` of the stack; pages of the whole photo pass the number over.
    virtual void begin(int index) = 0;
    // Ends it: what was changed stays.
    virtual void end() {}
    // Shows anew what is edited.
    virtual void load() = 0;

    // Whether what is edited is no longer what it was when the visit began.
    virtual bool hasChanged() const = 0;
    // Makes it what it was then. The visit goes on.
    virtual void revert() = 0;

    virtual void showFor(const SelectedPhoto& /*photo*/) {}
};

}  // namespace zelto
