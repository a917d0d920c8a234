#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "cardwright/platform/HostConnection.h"

namespace cardwright {

/// A host that lives in this process: it answers the command language of forms over a feature store. Each
/// layer of the store is a theme, each table without geometry a theme without a feature type. Belongs to the
/// thread that opened it.
///
/// The values that THEME_SET_ATTRIBUTE gives a feature are collected and go to the store together, in one
/// transaction, or not at all. They go when the next command comes that is not another value for the same
/// feature or a plain question: a selection, THEME_MOVEFIRST, THEME_SELECTION_NONE, APPLICATION_FLAGREDRAW,
/// APPLICATION_REDRAW, and also when the host is released. Until then THEME_GET_ATTRIBUTE answers the
/// collected value. One refused value refuses all that are collected with it.
class EmbeddedHost final : public HostConnection {
 public:
  enum class Access { ReadOnly, ReadWrite };

  /// Opens a store by the path or connection text that the data library takes. Asked for ReadWrite, a store
  /// that can only be read is opened for reading. Error 53 with a description that names the source and the
  /// reason where it cannot be opened at all.
  static Ref<EmbeddedHost> Open(const Text& source, Access access = Access::ReadWrite);

  /// The answer of a command, "" for most. A refused command replies "ERROR: " and the reason, which
  /// `onRefusal` is told as well. So does the command at which collected values are refused; it is carried
  /// out none the less.
  Text Execute(std::u16string_view command) override;
  /// The answer; "" where the request cannot be met. `onRefusal` is told of refused changes only.
  Text Request(std::u16string_view command) override;

  /// Ids of all features of a theme in the store's order, for a program that shows them: the command language
  /// has no such list. Empty where there is no such theme or it cannot be read.
  std::vector<std::int64_t> FeatureIds(std::u16string_view theme);
  /// Reads the features of a theme in the store's order, in one pass: a table of all of them would send three
  /// commands and more for each. `onFeature` gets the id and what THEME_GET_ATTRIBUTE would answer for each
  /// of `attributes`, "" where the theme has none of that name. Ends early, in silence, where reading fails.
  void ReadFeatures(std::u16string_view theme, std::span<const Text> attributes,
                    const std::function<void(std::int64_t id, std::vector<Text> values)>& onFeature);

  /// Why the latest command was refused, or "" if it was not.
  Text LastError() const;
  /// Called with the reason after a command was refused, once for all values that were to be stored together.
  /// May send commands itself.
  std::function<void(const Text& reason)> onRefusal;

  bool IsReadOnly() const noexcept;
  /// The handle that HWND_CONTROL answers: the one under which the host is registered. 0 until set.
  void SetHandle(std::int32_t handle) noexcept;

 private:
  class Session;

  explicit EmbeddedHost(std::unique_ptr<Session> session);
  ~EmbeddedHost() override;
  /// Keeps the host while a command runs, since whoever is told of a refusal may let go of it. One that is
  /// being released is held by nobody and must not be released again.
  Ref<EmbeddedHost> Hold();
  void Tell(const Text& reason) const;

  std::unique_ptr<Session> m_Session;
};

}  // namespace cardwright
