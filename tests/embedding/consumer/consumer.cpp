// SPDX-License-Identifier: MIT
#include "cardwright/model/IControl.h"
#include "cardwright/storage/CIni.h"
#include "model/Enums.h"

// Writes to a file by the library and reads it back, with names of both in one source.
int main(int argc, char** argv) {
  using namespace cardwright;
  if (argc < 2) return 2;
  CIni ini;
  ini.SetFileName(Text::FromUtf8(argv[1]));
  ini.WriteValue(u"Visits", u"Season", Variant(static_cast<std::int32_t>(Season::Autumn)));
  ini.WriteValue(u"Visits", u"Feature", Variant(static_cast<std::int32_t>(FeatureTypeEnum::ftPolygon)));
  const bool isKept = ini.GetText(u"Visits", u"Season") == u"2" && ini.GetText(u"Visits", u"Feature") == u"2";
  return isKept ? 0 : 1;
}
