// What a family brings to the shared screens besides its words: its face and the rows of its two
// forms.
#pragma once

#include "core/drawing/View.h"
#include "core/lifecycle/FamilyTable.h"
#include "core/lifecycle/Form.h"
#include "core/store/Family.h"

#include <vector>

namespace vitrelle {

/// Where a face is shown, since some are laid out by that.
enum class FaceUse { setup, second, gallery, assign, preview };

template <class Record>
struct StyleFamily {
  const Family<Record>& store;
  /// The look of a record. Read anew at each drawing: it may show the time.
  View (*face)(const Platform& platform, const Record& record, FaceUse use);
  std::vector<FormRow<Record>> setupRows;
  /// Copies what the setup edits, and nothing else.
  void (*copySetup)(const Record& from, Record& to);
  std::vector<FormRow<Record>> secondRows;
  void (*copySecond)(const Record& from, Record& to);

  const FamilyDescription& words() const { return familyDescription(store.name); }
};

} // namespace vitrelle
