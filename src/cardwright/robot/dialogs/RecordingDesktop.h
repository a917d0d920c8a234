// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Collection.h"
#include "cardwright/platform/ForwardingDesktop.h"

namespace cardwright::robot {

/// Replaces the thread's desktop while there are robots. It records message boxes, beeps and programs to
/// start, which it does not start, and passes everything else on to the desktop that it replaces.
class RecordingDesktop final : public ForwardingDesktop {
 public:
  RecordingDesktop();
  ~RecordingDesktop() override;
  RecordingDesktop(const RecordingDesktop&) = delete;
  RecordingDesktop& operator=(const RecordingDesktop&) = delete;

  const Ref<Collection>& Messages() const noexcept { return m_Messages; }
  const Ref<Collection>& Launches() const noexcept { return m_Launches; }
  std::int32_t Beeps() const noexcept { return m_Beeps; }

  int ShowMessage(const Text& text, int style, const Text& title) override;
  Variant AskText(const Text& prompt, const Text& title, const Text& initial, const Variant& x,
                  const Variant& y) override;
  bool IsAttended() const override { return true; }
  void Beep() override;
  void Start(const Text& commandLine) override;

 private:
  void Record(const Text& text, int style, const Text& title);

  const Ref<Collection> m_Messages = MakeRef<Collection>();
  const Ref<Collection> m_Launches = MakeRef<Collection>();
  std::int32_t m_Beeps = 0;
};

}  // namespace cardwright::robot
