#!/bin/sh
# SPDX-License-Identifier: MIT
# Recreates wells.gpkg from the tables next to it: wells (points), aquifers (polygons) and pipelines (lines), all in
# UTM zone 32, and symbols, a table without geometry that says how each of them is drawn. Needs ogr2ogr.
set -eu
cd "$(dirname "$0")"

new=$(mktemp -d)
trap 'rm -rf "$new"' EXIT
store="$new/wells.gpkg"

# layer SQL [option...]: one layer from the query over its table; the query gives types and widths.
layer() {
  name=$1 query=$2
  shift 2
  ogr2ogr -f GPKG "$@" "$store" "$name.csv" -nln "$name" -sql "$query" -a_srs EPSG:32632 -oo EMPTY_STRING_AS_NULL=YES
}

layer wells "SELECT CAST(NAME AS character(40)) AS NAME, CAST(OWNER AS character(60)) AS OWNER,
  CAST(DEPTH AS float) AS DEPTH, CAST(DIAMETER AS integer) AS DIAMETER, CAST(STATUS AS character(12)) AS STATUS,
  CAST(AQUIFER AS character(20)) AS AQUIFER, CAST(USE_CODE AS character(3)) AS USE_CODE,
  CAST(INSPECTED AS date) AS INSPECTED, CAST(MONITORED AS smallint) AS MONITORED,
  CAST(NOTES AS character(500)) AS NOTES FROM wells" \
  -oo X_POSSIBLE_NAMES=X -oo Y_POSSIBLE_NAMES=Y

layer aquifers "SELECT CAST(NAME AS character(40)) AS NAME, CAST(AREA_KM2 AS float) AS AREA_KM2,
  CAST(CLASS AS character(10)) AS CLASS FROM aquifers" -update -nlt POLYGON

layer pipelines "SELECT CAST(NAME AS character(40)) AS NAME, CAST(MATERIAL AS character(12)) AS MATERIAL,
  CAST(DIAMETER AS integer) AS DIAMETER, CAST(LAID AS date) AS LAID FROM pipelines" -update -nlt LINESTRING

layer symbols "SELECT CAST(NAME AS character(40)) AS NAME, CAST(THEME AS character(60)) AS THEME,
  CAST(KIND AS character(7)) AS KIND, CAST(LABEL AS character(60)) AS LABEL, CAST(COLOR AS character(20)) AS COLOR,
  CAST(FONT AS character(120)) AS FONT, CAST(PICTURE AS character(250)) AS PICTURE FROM symbols" -update -nlt NONE

mv "$store" wells.gpkg
