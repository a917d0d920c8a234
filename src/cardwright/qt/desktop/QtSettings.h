// SPDX-License-Identifier: MIT
#pragma once

#include <QSettings>

#include "cardwright/platform/Desktop.h"

namespace cardwright::qt {

/// Settings in one file in the user's configuration folder ("Cardwright/Settings.ini"). Names may hold any
/// characters and are the same in any case.
class QtSettings final : public SettingsStore {
 public:
  QtSettings();
  Text Get(std::u16string_view app, std::u16string_view section, std::u16string_view key,
           std::u16string_view fallback) const override;
  void Save(std::u16string_view app, std::u16string_view section, std::u16string_view key,
            std::u16string_view value) override;

 private:
  QSettings m_Settings;
};

}  // namespace cardwright::qt
