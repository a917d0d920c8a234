# SPDX-License-Identifier: MIT
# cardwright_join_sources(<target>): compiles the sources of a target in batches. The compiler's front end, which reads
# the same headers for each source, is most of a build's time. The price: names in unnamed namespaces must differ within
# a target, and a source may miss an include unseen, which the builds without it (CARDWRIGHT_UNITY=OFF) find.
function(cardwright_join_sources target)
  set_target_properties(${target} PROPERTIES UNITY_BUILD ${CARDWRIGHT_UNITY} UNITY_BUILD_BATCH_SIZE 12)
  # GCC takes a batched source for a header, in which a fixture in an unnamed namespace would be a mistake.
  if(CARDWRIGHT_UNITY)
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
  endif()
endfunction()
