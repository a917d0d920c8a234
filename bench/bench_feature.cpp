// SPDX-License-Identifier: MIT
// Opening one feature in a form of 100 bound text boxes, over a GeoPackage of 100,000 features, compared with
// reading the same columns of the same features by identifier with the data library alone.

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <QApplication>
#include <filesystem>
#include <random>

#include "FormFiles.h"
#include "Measure.h"
#include "cardwright/orv/EmbeddedHost.h"
#include "cardwright/qt/FormInput.h"
#include "cardwright/qt/Library.h"

namespace {

constexpr int kFeatures = 100000;
constexpr int kColumns = 100;
constexpr int kOpened = 50;

void Require(bool holds) {
  if (!holds) std::abort();
}

std::string Column(int number) { return "A" + std::to_string(number); }

using Store = std::unique_ptr<GDALDataset>;

// Made once and kept: writing ten million values takes a while.
void MakeStore(const std::string& path) {
  if (std::filesystem::exists(path)) return;
  const std::string partial = path + ".part.gpkg";
  std::filesystem::remove(partial);
  {
    const Store store(GetGDALDriverManager()->GetDriverByName("GPKG")->Create(partial.c_str(), 0, 0, 0,
                                                                              GDT_Unknown, nullptr));
    Require(store != nullptr);
    OGRLayer* layer = store->CreateLayer("points", nullptr, wkbPoint);
    for (int i = 1; i <= kColumns; ++i) {
      OGRFieldDefn field(Column(i).c_str(), i % 4 == 0 ? OFTInteger : OFTString);
      if (i % 4 != 0) field.SetWidth(20);
      Require(layer->CreateField(&field) == OGRERR_NONE);
    }
    store->StartTransaction();
    for (int row = 1; row <= kFeatures; ++row) {
      OGRFeature feature(layer->GetLayerDefn());
      for (int i = 1; i <= kColumns; ++i)
        if (i % 4 == 0)
          feature.SetField(i - 1, row + i);
        else
          feature.SetField(i - 1, ("v" + std::to_string(row * 7 + i)).c_str());
      OGRPoint point(row, row);
      feature.SetGeometry(&point);
      Require(layer->CreateFeature(&feature) == OGRERR_NONE);
    }
    store->CommitTransaction();
  }
  std::filesystem::rename(partial, path);
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  GDALAllRegister();
  const std::string data = CARDWRIGHT_BENCH_DATA;
  const std::string storePath = data + "/points.gpkg";
  MakeStore(storePath);

  const std::string formPath = data + "/points.cwf";
  {
    std::ofstream out(formPath, std::ios::binary);
    out << bench::ProjectHead(kColumns, "points");
    for (int i = 1; i <= kColumns; ++i)
      out << bench::ProjectSection({bench::Kind::TextBox, i, 0, 8, 24 * i, 170, 21}, Column(i));
  }

  cardwright::qt::Library library;
  const auto host = cardwright::EmbeddedHost::Open(cardwright::Text::FromUtf8(storePath));
  library.Connect(host);
  cardwright::qt::FormInput form;
  Require(form.ProjectRead(QString::fromStdString(formPath)));

  const Store peer(GDALDataset::Open(storePath.c_str(), GDAL_OF_VECTOR | GDAL_OF_READONLY));
  OGRLayer* layer = peer->GetLayerByName("points");
  std::mt19937 random(1);
  std::vector<int> ids(kOpened);
  for (int& id : ids) id = static_cast<int>(random() % kFeatures) + 1;

  bench::Compare(
      "FeatureID set, 100 bound attributes, 50 features", "GetFeature by id", 4.0, 15,
      [&] {
        for (const int id : ids) form.SetFeatureID(QString::number(id));
      },
      [&] {
        for (const int id : ids) {
          const OGRFeatureUniquePtr feature(layer->GetFeature(id));
          std::size_t length = 0;
          for (int i = 0; i < kColumns; ++i) length += std::string(feature->GetFieldAsString(i)).size();
          Require(length > 0);
        }
      });

  form.SetFeatureID("3");
  const cardwright::Variant first = form.Object()->Controls().Item(2);
  Require(dynamic_cast<cardwright::IControl&>(*first.ObjectPtr()).DisplayText() == u"v22");
  return 0;
}
