// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "cardwright/platform/HostConnection.h"

namespace cardwright {

namespace orv {
class StoreSession;
}

/// A host in the same process: it carries out the command language of forms over a feature store. Each layer
/// of the store is a theme; a table without geometry is a theme without a feature type. Belongs to the thread
/// that opened it.
///
/// The values that THEME_SET_ATTRIBUTE gives a feature are collected and stored together, in one transaction
/// or not at all. They are stored before the next command that is neither another value for the same feature
/// nor a query: a selection, THEME_MOVEFIRST, THEME_SELECTION_NONE, THEME_CREATE, APPLICATION_FLAGREDRAW,
/// APPLICATION_REDRAW; and when the host is released. Until then THEME_GET_ATTRIBUTE returns the collected
/// value. One invalid value discards all of them.
class EmbeddedHost final : public HostConnection {
 public:
  /// How a store is opened.
  enum class Access { ReadOnly, ReadWrite };

  /// Opens a store by a path or connection text of the data library. With ReadWrite a store that can only be
  /// read is opened for reading. Error 53, with a description that names the source and the reason, where it
  /// cannot be opened at all.
  static Ref<EmbeddedHost> Open(const Text& source, Access access = Access::ReadWrite);

  /// Runs a command. Returns its reply, "" for most commands, or "ERROR: " and the reason where it failed,
  /// which `onError` gets too. A command before which the collected values could not be stored returns that
  /// error, but is carried out.
  Text Execute(std::u16string_view command) override;
  /// Runs a command. Returns its reply, or "" where it failed. `onError` gets the errors of changes only.
  Text Request(std::u16string_view command) override;

  /// The ids of all features of a theme in the store's order, for programs that show them: the command
  /// language has no such list. Empty where there is no such theme or it cannot be read.
  std::vector<std::int64_t> FeatureIds(std::u16string_view theme);
  /// Reads all features of a theme in the store's order, in one pass instead of several commands for each.
  /// `onFeature` gets the id and the value of each of `attributes`, as THEME_GET_ATTRIBUTE returns it, or ""
  /// where the theme has no such attribute. Ends early, without an error, where reading fails.
  void ReadFeatures(std::u16string_view theme, std::span<const Text> attributes,
                    const std::function<void(std::int64_t id, std::vector<Text> values)>& onFeature);

  /// Why the latest command failed, or "" if it did not.
  Text LastError() const;
  /// Called with the reason after a command failed, and once for all values that should have been stored
  /// together. It may send commands and release the host.
  std::function<void(const Text& reason)> onError;

  /// Whether the store can only be read.
  bool IsReadOnly() const noexcept;
  /// The handle that HWND_CONTROL returns, under which the host is registered. 0 until set.
  void SetHandle(std::int32_t handle) noexcept;

 private:
  explicit EmbeddedHost(std::unique_ptr<orv::StoreSession> session);
  ~EmbeddedHost() override;
  /// Keeps the host alive during a command, because `onError` may release it. Null in the destructor, where
  /// nobody holds it any more.
  Ref<EmbeddedHost> KeepAlive();
  void ReportError(const Text& reason) const;

  std::unique_ptr<orv::StoreSession> m_Session;
};

}  // namespace cardwright
