// SPDX-License-Identifier: GPL-3.0-or-later
// What the styles that come with Qt get wrong in languages that read from right to left. Main thread only.
#pragma once

namespace zelto {

// From now on push buttons with words have no icon where the program reads from right to left: those styles tear the
// two apart and cut the words off.
void keepButtonWordsWhole();

}  // namespace zelto
