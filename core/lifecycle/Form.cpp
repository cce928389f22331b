#include "core/lifecycle/Form.h"

#include <algorithm>

namespace vitrelle {

std::vector<ShownRow> Form::shownRows(const StyleDraft& draft) const {
  std::vector<ShownRow> shown;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const FormRow& row = rows_[i];
    if (!row.shown || row.shown(draft)) {
      shown.push_back({i, row, row.get ? row.get(draft) : FormValue()});
    }
  }
  return shown;
}

void Form::setValue(StyleDraft& draft, std::size_t index, const FormValue& value) const {
  if (index >= rows_.size() || !rows_[index].set) return;
  const FormRow& row = rows_[index];
  const auto* number = std::get_if<std::int64_t>(&value);
  if (row.control == FormControl::stepper && number != nullptr) {
    row.set(draft, std::clamp(*number, row.range.lowest, row.range.highest));
  } else {
    row.set(draft, value);
  }
}

void Form::press(StyleEditor& editor, std::size_t index) const {
  if (index < rows_.size() && rows_[index].press) rows_[index].press(editor);
}

} // namespace vitrelle
