// SPDX-License-Identifier: MIT
#include "cardwright/hosting/FileHandle.h"

#include <unistd.h>

#include <cerrno>

#include "cardwright/automation/Errors.h"
#include "cardwright/hosting/InterruptSignal.h"

namespace cardwright {
namespace {}  // namespace

bool FileHandle::IsTerminal() const noexcept { return isatty(m_Descriptor) != 0; }

void FileHandle::Close() noexcept {
  if (IsOpen() && m_Owner == Owner::Holder) ::close(m_Descriptor);
  m_Descriptor = -1;
}

std::size_t FileHandle::Read(char* bytes, std::size_t size) const {
  // Ctrl+C must end the wait for input that never comes.
  while (!InterruptSignal::WasRaised()) {
    const ssize_t count = ::read(m_Descriptor, bytes, size);
    if (count >= 0) return static_cast<std::size_t>(count);
    if (errno != EINTR) break;
  }
  Raise(ErrorNumber::DeviceError);
}

void FileHandle::Write(std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t count = ::write(m_Descriptor, bytes.data(), bytes.size());
    if (count >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(count));
    } else if (errno != EINTR) {
      Raise(errno == ENOSPC || errno == EDQUOT ? ErrorNumber::DiskFull : ErrorNumber::DeviceError);
    }
  }
}

}  // namespace cardwright
