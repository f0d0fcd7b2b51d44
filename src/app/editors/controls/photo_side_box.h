// SPDX-License-Identifier: GPL-3.0-or-later
// The choice of the side of the photo that a size follows. Main thread only.
#pragma once

class QComboBox;
class QWidget;

namespace zelto {

// Its rows are said in the user's language; their data are the names of photo_side, which records store.
QComboBox* makePhotoSideBox(QWidget* parent);

}  // namespace zelto
