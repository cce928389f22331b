// The controls of an editor as data: a family tells what they show and write, and one view draws
// them all.
#pragma once

#include "core/lifecycle/StyleDraft.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace vitrelle {

using FormValue = std::variant<bool, std::int64_t, std::string, Colour>;

class StyleEditor;

enum class FormControl {
  text,       ///< a string; the title is the field's placeholder
  font,       ///< a string: a PostScript name, picked on a sheet
  symbol,     ///< a string: a name of the catalogue, picked on a sheet
  stepper,    ///< a number, shown behind the title
  toggle,     ///< a bool
  colourWell, ///< a colour
  segments,   ///< one of several values, each with a symbol
  menu,       ///< one of several values, each in words, picked from a list that opens
  note,       ///< words and a symbol, without a value
  button,     ///< words and a symbol; does something at once
};

constexpr bool isPickedOnSheet(FormControl control) {
  return control == FormControl::font || control == FormControl::symbol;
}

/// Of a stepper, in steps of 1.
struct NumberRange {
  std::int64_t lowest = 10;
  std::int64_t highest = 80;
  bool operator==(const NumberRange&) const = default;
};

/// One value to choose, in the order in which they are shown, from the left or the top.
struct FormOption {
  FormValue value;
  std::string_view symbol = {}; ///< of a segment
  std::string_view words;       ///< shown in a menu; of a segment for those who do not see it
};

/// One row of a family's form. Which control it is, is told by its kind alone.
struct FormRow {
  std::string_view title;
  FormControl control = FormControl::toggle;
  std::function<FormValue(const StyleDraft&)> get = {}; ///< none for a row without a value
  /// A value of another kind than the row's changes nothing. None for a row without a value.
  std::function<void(StyleDraft&, const FormValue&)> set = {};
  std::function<void(StyleEditor&)> press = {};      ///< of a button
  std::function<bool(const StyleDraft&)> shown = {}; ///< always, when it is empty
  NumberRange range = {};
  std::vector<FormOption> options = {};
  std::string_view label = {};  ///< of a choice; never shown, and spoken of segments alone
  std::string_view symbol = {}; ///< of a row without a value
  bool isBehindDivider = false; ///< a line sets it apart from the row above
};

/// A row over one field of a family's record.
template <class Record, class Field>
FormRow rowOver(std::string_view title, FormControl control, Field Record::*field) {
  return {.title = title,
          .control = control,
          .get =
              [field](const StyleDraft& draft) {
                return FormValue(std::get<Record>(draft.record).*field);
              },
          .set =
              [field](StyleDraft& draft, const FormValue& value) {
                if (const auto* told = std::get_if<Field>(&value))
                  std::get<Record>(draft.record).*field = *told;
              }};
}

/// A choice among values of one field.
template <class Record>
FormRow choiceOver(std::string_view title, std::string_view label, std::int64_t Record::*field,
                   std::vector<FormOption> options) {
  FormRow row = rowOver(title, FormControl::segments, field);
  row.label = label;
  row.options = std::move(options);
  return row;
}

/// The same of values in words, on a list.
template <class Record, class Field>
FormRow menuOver(std::string_view title, std::string_view label, Field Record::*field,
                 std::vector<FormOption> options) {
  FormRow row = rowOver(title, FormControl::menu, field);
  row.label = label;
  row.options = std::move(options);
  return row;
}

inline FormRow button(std::string_view symbol, std::string_view words,
                      std::function<void(StyleEditor&)> press) {
  return {
      .title = words, .control = FormControl::button, .press = std::move(press), .symbol = symbol};
}

inline FormRow note(std::string_view symbol, std::string_view words) {
  return {.title = words, .control = FormControl::note, .symbol = symbol};
}

/// The same row, where the condition holds.
inline FormRow shownWhen(std::function<bool(const StyleDraft&)> condition, FormRow row) {
  row.shown = std::move(condition);
  return row;
}

/// A row as it is shown now.
struct ShownRow {
  std::size_t index = 0; ///< which of the form's
  FormRow row;
  FormValue value;
};

/// The rows of a step over a draft.
class Form final {
 public:
  explicit Form(std::vector<FormRow> rows) : rows_(std::move(rows)) {}

  std::vector<ShownRow> shownRows(const StyleDraft& draft) const;
  /// Numbers of a stepper stay in its range; an index without a row changes nothing.
  void setValue(StyleDraft& draft, std::size_t index, const FormValue& value) const;
  /// What the button of the index does; nothing for another row.
  void press(StyleEditor& editor, std::size_t index) const;

 private:
  std::vector<FormRow> rows_;
};

/// What a font row shows for a name.
inline std::string_view fontWords(std::string_view name) {
  return name.empty() ? "Default" : name;
}

} // namespace vitrelle
