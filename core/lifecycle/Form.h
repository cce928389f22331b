// The controls of an editor as data: what they show and write is told by each family, and one view
// draws them all.
#pragma once

#include "core/store/Colour.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <variant>

namespace vitrelle {

using FormValue = std::variant<bool, std::int64_t, std::string, Colour>;

/// Views know them by their order.
enum class FormControl {
  text,       ///< a string; the title is the field's placeholder
  font,       ///< a string: a PostScript name, picked on a sheet
  stepper,    ///< a number, shown behind the title
  toggle,     ///< a bool
  colourWell, ///< a colour
};

/// Of a stepper, in steps of 1.
struct NumberRange {
  std::int64_t lowest = 10;
  std::int64_t highest = 80;
  bool operator==(const NumberRange&) const = default;
};

/// One row of a family's form, over the record that the form edits.
template <class Record>
struct FormRow {
  std::string_view title;
  FormControl control = FormControl::toggle;
  std::function<FormValue(const Record&)> get = {};
  std::function<void(Record&, const FormValue&)> set = {};
  std::function<bool(const Record&)> shown = {}; ///< always, when it is empty
  NumberRange range = {};
};

/// A row over one field of the record.
template <class Record, class Field>
FormRow<Record> rowOver(std::string_view title, FormControl control, Field Record::*field) {
  return {.title = title,
          .control = control,
          .get = [field](const Record& record) { return FormValue(record.*field); },
          .set =
              [field](Record& record, const FormValue& value) {
                if (const auto* told = std::get_if<Field>(&value)) record.*field = *told;
              }};
}

/// A row as it is shown now.
struct ShownRow {
  std::size_t row = 0; ///< which of the form's
  std::string_view title;
  FormControl control = FormControl::toggle;
  FormValue value;
  NumberRange range;
  bool operator==(const ShownRow&) const = default;
};

/// What a font row shows for a name.
inline std::string_view fontWords(std::string_view name) {
  return name.empty() ? "Default" : name;
}

} // namespace vitrelle
