// SPDX-License-Identifier: GPL-3.0-or-later
// The renaming of the output options: whether, and by which pattern, with a menu of the macros it may hold.
// Main thread only.
#pragma once

#include "records/output_options.h"

#include <QGroupBox>

class QLineEdit;
class QMenu;

namespace zelto {

class RenamePanel : public QGroupBox {
    Q_OBJECT

  public:
    explicit RenamePanel(QWidget* parent = nullptr);

    // Only what belongs to renaming is loaded and stored.
    void load(const OutputOptions& options);
    void store(OutputOptions& options) const;

  Q_SIGNALS:
    void changed();

  private:
    // Puts a macro where the cursor stands, in place of what is selected.
    void SetOutputNameFormat(const QString& macro);

    QLineEdit* pattern_;
    QMenu* macros_;
};

}  // namespace zelto
