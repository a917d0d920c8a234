// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <utility>

namespace cardwright {

/// A file descriptor, closed with its holder unless it is one of the program's own streams.
class FileHandle {
 public:
  enum class Owner { Holder, Program };

  FileHandle() noexcept = default;
  FileHandle(int descriptor, Owner owner) noexcept : m_Descriptor(descriptor), m_Owner(owner) {}
  FileHandle(FileHandle&& other) noexcept
      : m_Descriptor(std::exchange(other.m_Descriptor, -1)), m_Owner(other.m_Owner) {}
  ~FileHandle() { Close(); }

  bool IsOpen() const noexcept { return m_Descriptor >= 0; }
  int Descriptor() const noexcept { return m_Descriptor; }
  bool IsTerminal() const noexcept;
  void Close() noexcept;

  /// Waits for input and reads at most `size` bytes; 0 at the end. Error 57 where the device fails, and after
  /// Ctrl+C, which ends the wait.
  std::size_t Read(char* bytes, std::size_t size) const;
  /// Writes all bytes. Error 61 where the disk is full, 57 for other failures.
  void Write(std::string_view bytes) const;

 private:
  int m_Descriptor = -1;
  Owner m_Owner = Owner::Holder;
};

}  // namespace cardwright
