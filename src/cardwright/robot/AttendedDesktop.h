#pragma once

#include "cardwright/automation/Collection.h"
#include "cardwright/platform/ForwardingDesktop.h"

namespace cardwright::robot {

/// The thread's desktop while a robot sits at it: it keeps what was shown, heard and asked for, and starts no
/// programs. Everything else is the next desktop's, in whose place it stands while it lives.
class AttendedDesktop final : public ForwardingDesktop {
 public:
  AttendedDesktop();
  ~AttendedDesktop() override;
  AttendedDesktop(const AttendedDesktop&) = delete;
  AttendedDesktop& operator=(const AttendedDesktop&) = delete;

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
  void Keep(const Text& text, int style, const Text& title);

  const Ref<Collection> m_Messages = MakeRef<Collection>();
  const Ref<Collection> m_Launches = MakeRef<Collection>();
  std::int32_t m_Beeps = 0;
};

}  // namespace cardwright::robot
