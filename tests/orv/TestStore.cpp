// SPDX-License-Identifier: MIT
#include "TestStore.h"

#include <cstdlib>

namespace cardwright::orv_tests {

namespace {

void Require(bool condition, const char* what) {
  if (!condition) throw std::runtime_error(std::string("The test store cannot be made: ") + what);
}

OGRLayer* MakeLayer(GDALDataset& data, const char* name, OGRwkbGeometryType type,
                    const std::vector<ColumnPlan>& columns) {
  OGRLayer* const layer = data.CreateLayer(name, nullptr, type, nullptr);
  Require(layer, name);
  for (const ColumnPlan& plan : columns) {
    OGRFieldDefn field(plan.name, plan.type);
    field.SetSubType(plan.subtype);
    field.SetWidth(plan.width);
    field.SetPrecision(plan.precision);
    field.SetNullable(plan.nullable);
    Require(layer->CreateField(&field) == OGRERR_NONE, plan.name);
  }
  return layer;
}

void AddFeature(OGRLayer& layer, const char* geometry,
                const std::vector<std::pair<const char*, const char*>>& values) {
  OGRFeature feature(layer.GetLayerDefn());
  for (const auto& [name, value] : values) feature.SetField(name, value);
  if (*geometry) {
    OGRGeometry* shape = nullptr;
    Require(OGRGeometryFactory::createFromWkt(geometry, nullptr, &shape) == OGRERR_NONE, geometry);
    feature.SetGeometryDirectly(shape);
  }
  Require(layer.CreateFeature(&feature) == OGRERR_NONE, "feature");
}

GDALDatasetUniquePtr Create(const char* driver, const std::string& path) {
  GDALDriver* const maker = GetGDALDriverManager()->GetDriverByName(driver);
  Require(maker, driver);
  GDALDatasetUniquePtr data(maker->Create(path.c_str(), 0, 0, 0, GDT_Unknown, nullptr));
  Require(data != nullptr, path.c_str());
  return data;
}

const std::vector<ColumnPlan> kWellColumns = {
    {"NAME", OFTString, 20},
    {"DEPTH", OFTReal},
    {"LEVEL", OFTReal, 0, 0, OFSTFloat32},
    {"DIAMETER", OFTInteger},
    {"FLOORS", OFTInteger, 0, 0, OFSTInt16},
    {"SERIAL", OFTInteger64},
    {"OPEN", OFTInteger, 0, 0, OFSTBoolean},
    {"INSPECTED", OFTDate},
    {"SEEN", OFTDateTime},
    {"NOTES", OFTString},
    {"CODE", OFTString, 5, 0, OFSTNone, false},
    {"A,B", OFTString},
    {"A|B", OFTString},
    {"say \"so\"", OFTString},
    {"PHOTO", OFTBinary},
};

}  // namespace

TempFolder::TempFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "orv città XXXXXX").string();
  Require(mkdtemp(name.data()), name.c_str());
  m_Path = name;
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(m_Path, ignored);
}

TestStore::TestStore() { GDALAllRegister(); }

std::string TestStore::MakeGeoPackage() {
  const std::string path = m_Folder.File("wells.gpkg");
  const auto data = Create("GPKG", path);
  OGRLayer* const wells = MakeLayer(*data, "wells", wkbPoint, kWellColumns);
  AddFeature(*wells, "POINT (1 2)",
             {{"NAME", "Bruna"}, {"DEPTH", "38.5"}, {"DIAMETER", "250"}, {"CODE", "A"}});
  AddFeature(*wells, "POINT (3 4)", {{"NAME", "Però"}, {"CODE", "B"}});
  AddFeature(*wells, "POINT (5 6)",
             {{"NAME", "Chiesa"},
              {"DEPTH", "61.25"},
              {"LEVEL", "0.5"},
              {"DIAMETER", "300"},
              {"FLOORS", "-2"},
              {"SERIAL", "9007199254740993"},
              {"OPEN", "1"},
              {"INSPECTED", "2026/05/04"},
              {"SEEN", "2026/05/04 10:20:30+00"},
              {"NOTES", "già\r\n|provata|"},
              {"CODE", "C"},
              {"say \"so\"", "so"}});
  AddFeature(*MakeLayer(*data, "areas", wkbMultiPolygon, {{"NAME", OFTString}}),
             "MULTIPOLYGON (((0 0,1 0,1 1,0 0)))", {{"NAME", "Nord"}});
  AddFeature(*MakeLayer(*data, "pipes", wkbLineString, {{"NAME", OFTString}}), "LINESTRING (0 0,1 1)",
             {{"NAME", "Est"}});
  AddFeature(*MakeLayer(*data, "mixed", wkbUnknown, {{"NAME", OFTString}}), "POINT (0 0)", {{"NAME", "Any"}});
  AddFeature(*MakeLayer(*data, "notes", wkbNone, {{"NAME", OFTString}}), "", {{"NAME", "Plain"}});
  return path;
}

std::string TestStore::MakeSimple(const char* driver, const std::string& name,
                                  const std::vector<ColumnPlan>& columns) {
  const std::string path = m_Folder.File(name);
  const auto data = Create(driver, path);
  OGRLayer* const layer = MakeLayer(*data, "wells", wkbPoint, columns);
  AddFeature(*layer, "POINT (1 2)", {{"NAME", "Bruna"}, {"DEPTH", "38.5"}, {"DIAMETER", "250"}});
  AddFeature(*layer, "POINT (3 4)", {{"NAME", "Chiesa"}, {"DEPTH", "61.25"}, {"DIAMETER", "300"}});
  return path;
}

std::string TestStore::Stored(const std::string& path, const char* layer, GIntBig id, const char* column) {
  const auto data = OpenRaw(path);
  const OGRFeatureUniquePtr feature(data->GetLayerByName(layer)->GetFeature(id));
  if (!feature) return "(no feature)";
  const int field = feature->GetFieldIndex(column);
  return feature->IsFieldSetAndNotNull(field) ? feature->GetFieldAsString(field) : "(null)";
}

std::string TestStore::Geometry(const std::string& path, const char* layer, GIntBig id) {
  const auto data = OpenRaw(path);
  const OGRFeatureUniquePtr feature(data->GetLayerByName(layer)->GetFeature(id));
  return feature && feature->GetGeometryRef() ? feature->GetGeometryRef()->exportToWkt() : "(none)";
}

void TestStore::RunSql(const std::string& path, const std::string& statement) {
  const auto data = OpenRaw(path, true);
  CPLErrorReset();
  if (OGRLayer* const result = data->ExecuteSQL(statement.c_str(), nullptr, nullptr))
    data->ReleaseResultSet(result);
  Require(CPLGetLastErrorType() < CE_Failure, CPLGetLastErrorMsg());
}

Ref<EmbeddedHost> TestStore::Open(const std::string& path, EmbeddedHost::Access access) {
  const Ref<EmbeddedHost> host = EmbeddedHost::Open(Text::FromUtf8(path), access);
  host->onError = [this](const Text& reason) { m_Errors.push_back(reason.ToUtf8()); };
  return host;
}

std::string TestStore::Execute(EmbeddedHost& host, const std::string& command) {
  return host.Execute(Text::FromUtf8(command)).ToUtf8();
}

std::string TestStore::Request(EmbeddedHost& host, const std::string& command) {
  return host.Request(Text::FromUtf8(command)).ToUtf8();
}

void TestStore::Select(EmbeddedHost& host, const std::string& theme, const std::string& id) {
  Execute(host, "THEME_SELECTION_BYVALUE |" + theme + "| || OVTARVOUNIQUEID = " + id + " NEW");
  Execute(host, "THEME_MOVEFIRST |" + theme + "| ||");
}

std::string TestStore::Get(EmbeddedHost& host, const std::string& theme, const std::string& name) {
  return Request(host, "THEME_GET_ATTRIBUTE |" + theme + "| || |" + name + "|");
}

std::string TestStore::Set(EmbeddedHost& host, const std::string& theme, const std::string& name,
                           const std::string& value) {
  return Execute(host, "THEME_SET_ATTRIBUTE |" + theme + "| || |" + name + "| " + value);
}

std::string TestStore::Finish(EmbeddedHost& host, const std::string& theme) {
  return Execute(host, "THEME_SELECTION_NONE |" + theme + "| ||");
}

GDALDatasetUniquePtr OpenRaw(const std::string& path, bool update) {
  const char* const options[] = {"@LIST_ALL_TABLES=YES", nullptr};
  GDALDatasetUniquePtr data(
      GDALDataset::Open(path.c_str(), GDAL_OF_VECTOR | (update ? GDAL_OF_UPDATE : 0u), nullptr, options));
  Require(data != nullptr, path.c_str());
  return data;
}

}  // namespace cardwright::orv_tests
