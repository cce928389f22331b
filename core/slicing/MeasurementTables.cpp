#include "core/slicing/MeasurementTables.h"

#include <algorithm>

namespace vitrelle {

namespace {

// Measured on screenshots of each phone. Rows that differ by a pixel do so because the phones do;
// they are not to be unified, and the phones that a table lacks are not supported in it.
// clang-format off

// OS 18 or later, display not zoomed.
constexpr DeviceMeasurements iOS18Rows[] = {
  // device                       size, top, left, horizontal, vertical
  {"iPhone 16",                  {474, 240,  83, 540, 588}},
  {"iPhone 16 Plus",             {511, 252,  99, 581, 636}},
  {"iPhone 15 Pro Max",          {511, 252,  99, 581, 636}},
  {"iPhone 15 Pro",              {474, 240,  83, 540, 588}},
  {"iPhone 15 Plus",             {511, 252,  99, 581, 636}},
  {"iPhone 15",                  {474, 240,  83, 540, 588}},
  {"iPhone 14",                  {475, 201,  77, 540, 588}},
  {"iPhone 14 Plus",             {512, 215,  95, 581, 636}},
  {"iPhone 14 Pro",              {474, 240,  83, 540, 588}},
  {"iPhone 14 Pro Max",          {511, 252,  99, 581, 636}},
  {"iPhone SE (3rd generation)", {296,  60,  54, 346, 352}},
  {"iPhone 13 Pro Max",          {511, 215,  95, 581, 636}},
  {"iPhone 13 Pro",              {475, 201,  77, 540, 588}},
  {"iPhone 13",                  {475, 201,  77, 540, 588}},
  {"iPhone 13 Mini",             {466, 200,  68, 522, 570}},
  {"iPhone 12 Pro Max",          {511, 215,  95, 581, 636}},
  {"iPhone 12 Pro",              {475, 201,  77, 540, 588}},
  {"iPhone 12",                  {475, 201,  77, 540, 588}},
  {"iPhone 12 Mini",             {466, 200,  68, 522, 570}},
  {"iPhone SE (2nd generation)", {296,  60,  54, 346, 352}},
  {"iPhone 11 Pro Max",          {507, 198,  81, 573, 630}},
  {"iPhone 11 Pro",              {465, 183,  69, 522, 570}},
  {"iPhone 11",                  {338, 130,  54, 382, 420}},
  {"iPhone XR",                  {338, 130,  54, 382, 420}},
  {"iPhone XS Max",              {507, 198,  81, 573, 630}},
  {"iPhone XS",                  {465, 183,  69, 522, 570}},
};

// An OS before 18, display not zoomed.
constexpr DeviceMeasurements classicRows[] = {
  // device                       size, top, left, horizontal, vertical
  {"iPhone 15 Pro Max",          {508, 282, 100, 581, 636}},
  {"iPhone 15 Pro",              {473, 271,  83, 540, 588}},
  {"iPhone 15 Plus",             {508, 282, 100, 581, 636}},
  {"iPhone 15",                  {473, 271,  83, 540, 588}},
  {"iPhone 14",                  {474, 231,  78, 540, 588}},
  {"iPhone 14 Plus",             {511, 245,  96, 581, 636}},
  {"iPhone 14 Pro",              {473, 271,  83, 540, 588}},
  {"iPhone 14 Pro Max",          {508, 282, 100, 581, 636}},
  {"iPhone SE (3rd generation)", {296,  60,  54, 346, 352}},
  {"iPhone 13 Pro Max",          {511, 245,  96, 581, 636}},
  {"iPhone 13 Pro",              {474, 231,  78, 540, 588}},
  {"iPhone 13",                  {474, 231,  78, 540, 588}},
  {"iPhone 13 Mini",             {466, 230,  68, 522, 570}},
  {"iPhone 12 Pro Max",          {511, 245,  96, 581, 636}},
  {"iPhone 12 Pro",              {474, 231,  78, 540, 588}},
  {"iPhone 12",                  {474, 231,  78, 540, 588}},
  {"iPhone 12 Mini",             {466, 230,  68, 522, 570}},
  {"iPhone SE (2nd generation)", {296,  60,  55, 346, 352}},
  {"iPhone 11 Pro Max",          {507, 231,  81, 573, 630}},
  {"iPhone 11 Pro",              {465, 213,  69, 522, 570}},
  {"iPhone 11",                  {338, 160,  54, 382, 420}},
  {"iPhone XR",                  {338, 160,  54, 382, 420}},
  {"iPhone XS Max",              {507, 228,  81, 573, 630}},
  {"iPhone XS",                  {465, 213,  69, 522, 570}},
  {"iPhone X",                   {465, 213,  69, 522, 570}},
  {"iPhone 8 Plus",              {471, 114,  99, 573, 582}},
  {"iPhone 8",                   {296,  60,  55, 346, 352}},
  {"iPhone 7 Plus",              {471, 114,  99, 573, 582}},
  {"iPhone 7",                   {296,  60,  54, 346, 352}},
  {"iPhone SE",                  {282,  60,  28, 302, 340}},
  {"iPhone 6s Plus",             {471, 114,  99, 573, 582}},
  {"iPhone 6s",                  {296,  60,  54, 346, 352}},
  {"iPhone 6 Plus",              {471, 114,  99, 573, 582}},
  {"iPhone 6",                   {296,  60,  54, 346, 352}},
};

// Display zoomed, any OS.
constexpr DeviceMeasurements zoomedRows[] = {
  // device                       size, top, left, horizontal, vertical
  {"iPhone 15 Pro Max",          {466, 234,  69, 523, 568}},
  {"iPhone 15 Pro",              {421, 202,  42, 454, 511}},
  {"iPhone 15 Plus",             {466, 234,  69, 523, 568}},
  {"iPhone 15",                  {421, 202,  42, 454, 511}},
  {"iPhone 14 Pro Max",          {466, 234,  69, 523, 568}},
  {"iPhone 14 Pro",              {421, 202,  42, 454, 511}},
  {"iPhone 14",                  {423, 174,  41, 454, 511}},
  {"iPhone 14 Plus",             {467, 202,  69, 523, 568}},
  {"iPhone SE (3rd generation)", {282,  60,  28, 302, 340}},
  {"iPhone 13 Pro Max",          {467, 202,  69, 523, 568}},
  {"iPhone 13 Pro",              {423, 174,  41, 454, 511}},
  {"iPhone 13",                  {423, 174,  41, 454, 511}},
  {"iPhone 13 Mini",             {425, 185,  40, 453, 511}},
  {"iPhone 12 Pro Max",          {467, 202,  69, 523, 568}},
  {"iPhone 12 Pro",              {423, 174,  41, 454, 511}},
  {"iPhone 12",                  {423, 174,  41, 454, 511}},
  {"iPhone 12 Mini",             {425, 185,  40, 453, 511}},
  {"iPhone SE (2nd generation)", {282,  60,  28, 302, 340}},
  {"iPhone 11 Pro Max",          {465, 201,  69, 523, 568}},
  {"iPhone 11 Pro",              {424, 170,  42, 452, 511}},
  {"iPhone 11",                  {310, 142,  46, 348, 380}},
  {"iPhone XR",                  {310, 142,  46, 348, 380}},
  {"iPhone XS Max",              {465, 201,  69, 523, 568}},
  {"iPhone XS",                  {424, 170,  42, 452, 511}},
  {"iPhone X",                   {424, 170,  42, 452, 511}},
  {"iPhone 8 Plus",              {444,  90,  81, 519, 528}},
  {"iPhone 8",                   {282,  60,  28, 302, 340}},
  {"iPhone 7 Plus",              {444,  90,  81, 519, 528}},
  {"iPhone 7",                   {282,  60,  28, 302, 340}},
  {"iPhone SE",                  {282,  60,  28, 302, 340}},
  {"iPhone 6s Plus",             {444,  90,  81, 519, 528}},
  {"iPhone 6s",                  {282,  60,  28, 302, 340}},
  {"iPhone 6 Plus",              {444,  90,  81, 519, 528}},
  {"iPhone 6",                   {282,  60,  28, 302, 340}},
};

// clang-format on

} // namespace

std::span<const DeviceMeasurements> measurementRows(MeasurementTable table) {
  switch (table) {
  case MeasurementTable::iOS18:
    return iOS18Rows;
  case MeasurementTable::classic:
    return classicRows;
  case MeasurementTable::zoomed:
    return zoomedRows;
  }
  return {};
}

const DeviceMeasurements* findMeasurements(std::string_view device, MeasurementTable table) {
  const auto rows = measurementRows(table);
  const auto found = std::ranges::find(rows, device, &DeviceMeasurements::device);
  return found == rows.end() ? nullptr : &*found;
}

} // namespace vitrelle
