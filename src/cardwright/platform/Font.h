// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "cardwright/automation/MemberTable.h"

namespace cardwright {

/// What a font object holds.
struct FontValues {
  Text name = u"MS Sans Serif";  ///< of the family
  double size = 8.25;            ///< points, up to four decimals
  /// @name Style
  /// @{
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikethrough = false;
  /// @}

  friend bool operator==(const FontValues&, const FontValues&) = default;
};

/// A size in points as a font keeps it, at four decimals. Error 380 for one that no font has.
double ToFontSize(double points);

/// The platform's font object: shared, not copied, by everything that shows its text with it. Default member:
/// Name.
class Font final : public TableObject {
 public:
  /// A font with these values.
  explicit Font(FontValues values = {}) : m_Values(std::move(values)) {}

  Text TypeName() const override { return u"Font"; }
  /// The current values.
  const FontValues& Values() const noexcept { return m_Values; }
  /// Changes all members in one step and notifies each user of the font once, if anything differs.
  void Assign(FontValues values);

  /// Called whenever the font has changed, until the user removes itself.
  class User {
   public:
    /// The font has new values.
    virtual void OnFontChanged(const Font& font) = 0;

   protected:
    ~User() = default;
  };
  /// @name Registered users must remove themselves before they end.
  /// @{
  void AddUser(User& user) { m_Users.push_back(&user); }
  void RemoveUser(User& user);
  /// @}

 protected:
  const MemberTable& Members() const override;

 private:
  FontValues m_Values;
  std::vector<User*> m_Users;
};

}  // namespace cardwright
