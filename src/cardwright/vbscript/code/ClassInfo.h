// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <unordered_map>
#include <vector>

#include "cardwright/vbscript/code/Procedure.h"

namespace cardwright::vbscript {

/// A procedure of a class, and whether code outside the class may call it.
struct ClassProcedure {
  Ref<Procedure> code;
  bool isPublic = false;
};

/// One name of a class: a field, a method, or a property with up to three procedures.
struct ClassMember {
  NameId name = kNoName;
  std::int32_t field = -1;
  bool fieldIsPublic = false;
  ClassProcedure method, get, let, set;  ///< `method` for a Sub or Function
};

/// A class that a script defined.
class ClassInfo final : public RefCounted {
 public:
  NameId name = kNoName;
  Text spelling;
  Module* module = nullptr;
  std::deque<ClassMember>
      members;  ///< in order of declaration; the position is the member's number for callers
  std::unordered_map<NameId, std::int32_t> index;
  struct FieldArray {
    std::int32_t field;
    ArrayShape shape;
  };
  std::vector<FieldArray> arrays;
  std::int32_t fields = 0;
  std::int32_t defaultMember = -1;
  Ref<Procedure> initialize, terminate;

  const ClassMember* Find(NameId id) const noexcept {
    const auto found = index.find(id);
    return found == index.end() ? nullptr : &members[static_cast<std::size_t>(found->second)];
  }
  ClassMember& Member(NameId id);

 private:
  static constexpr std::size_t kBytesOfContainers =
      1024;  // of the containers above, however few their elements
  MemoryShare m_Memory{kBytesOfContainers};
};

}  // namespace cardwright::vbscript
