// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "cardwright/automation/Text.h"
#include "cardwright/model/Enums.h"

class QWidget;

namespace cardwright::qt {

/// A theme to be created.
struct NewTheme {
  Text name;
  FeatureTypeEnum featureType = FeatureTypeEnum::ftPoint;
};

/// Asks a user for the name and the feature type of a new theme; none where it was cancelled or the dialog
/// ended with its window. A name that `isTaken` knows or no host can take is refused while it is typed. The
/// dialog's own name is "frmNewTheme"; its parts are "txtName", "cboKind", "cmdOK" and "cmdCancel".
std::optional<NewTheme> AskForNewTheme(QWidget& owner, const QString& title,
                                       std::function<bool(std::u16string_view name)> isTaken);

}  // namespace cardwright::qt
