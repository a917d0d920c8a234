// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <string_view>

namespace cardwright::qt {

/// The picture of a button of the script editor's toolbar by its key ("save", "find", "method", …), drawn at
/// whatever size is asked for; an empty one for a key that has none.
QIcon EditorIcon(std::u16string_view key);

}  // namespace cardwright::qt
