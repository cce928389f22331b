#include "cli/Command.h"

#include "cli/Numbers.h"
#include "cli/OneLine.h"
#include "core/store/Decimal.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <iostream>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

#include <unistd.h>

namespace vitrelle::cli {

namespace {

using Json = nlohmann::ordered_json;

// Values as text.

constexpr std::chrono::sys_days referenceDate{std::chrono::year{2001} / 1 / 1};

std::string hexadecimal(const Data& data) {
  std::string text;
  for (const std::uint8_t byte : data) {
    constexpr const char* digits = "0123456789abcdef";
    text += digits[byte >> 4];
    text += digits[byte & 15];
  }
  return text;
}

/// ISO 8601 in UTC to the millisecond; the seconds since the reference date where the year has not
/// four digits.
std::string isoDate(Date date) {
  using namespace std::chrono;
  constexpr double fourDigitSeconds = 250e9;
  const double seconds = date.secondsSinceReferenceDate;
  if (!(seconds > -63e9 && seconds < fourDigitSeconds)) return shortestDecimal(seconds);
  const auto moment = referenceDate + round<milliseconds>(duration<double>(seconds));
  const auto day = floor<days>(moment);
  const year_month_day calendar(day);
  const hh_mm_ss time(moment - day);
  std::array<char, 40> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "%04d-%02u-%02uT%02d:%02d:%02d.%03dZ",
                static_cast<int>(calendar.year()), static_cast<unsigned>(calendar.month()),
                static_cast<unsigned>(calendar.day()), static_cast<int>(time.hours().count()),
                static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()),
                static_cast<int>(time.subseconds().count()));
  return buffer.data();
}

struct Kind {
  const char* name;
  /// As in a list, where a string is quoted and a blob stands in angle brackets.
  std::string text;
  Json json;
};

Kind describe(const StoreValue& value) {
  struct Describer {
    Kind operator()(std::int64_t number) const { return {"Int", std::to_string(number), number}; }
    Kind operator()(double number) const { return {"Double", shortestDecimal(number), number}; }
    Kind operator()(bool flag) const { return {"Bool", flag ? "true" : "false", flag}; }
    Kind operator()(const std::string& text) const { return {"String", quotedLine(text), text}; }
    Kind operator()(const Data& data) const {
      const std::string digits = hexadecimal(data);
      return {"Data", "<" + digits + ">", digits};
    }
    Kind operator()(Date date) const {
      const std::string text = isoDate(date);
      return {"Date", text, text};
    }
  };
  return std::visit(Describer{}, value);
}

Json json(const std::optional<StoreValue>& value) {
  if (!value) return nullptr;
  Kind kind = describe(*value);
  return {{"type", kind.name}, {"value", std::move(kind.json)}};
}

void printJson(const Json& json) {
  std::cout << json.dump(-1, ' ', false, Json::error_handler_t::replace) << std::endl;
}

// Text as values.

std::optional<StoreValue> parseInteger(const std::string& text) {
  if (const auto number = wholeNumber(text)) return *number;
  return std::nullopt;
}

std::optional<StoreValue> parseReal(const std::string& text) {
  double number = 0;
  const char* end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  if (read.ec != std::errc() || read.ptr != end || !std::isfinite(number)) return std::nullopt;
  return number;
}

std::optional<StoreValue> parseBool(const std::string& text) {
  for (const char* word : {"true", "yes", "1"}) {
    if (text == word) return true;
  }
  for (const char* word : {"false", "no", "0"}) {
    if (text == word) return false;
  }
  return std::nullopt;
}

std::optional<StoreValue> parseData(const std::string& text) {
  if (text.size() % 2 != 0) return std::nullopt;
  Data data;
  for (std::size_t i = 0; i < text.size(); i += 2) {
    std::uint8_t byte = 0;
    const char* end = text.data() + i + 2;
    if (std::from_chars(text.data() + i, end, byte, 16).ptr != end) return std::nullopt;
    data.push_back(byte);
  }
  return data;
}

/// Takes the pattern off the front of the text, where a 0 stands for any digit; whether it was
/// there.
bool take(std::string_view pattern, std::string_view& text) {
  if (text.size() < pattern.size()) return false;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const bool fits = pattern[i] == '0' ? text[i] >= '0' && text[i] <= '9' : text[i] == pattern[i];
    if (!fits) return false;
  }
  text.remove_prefix(pattern.size());
  return true;
}

/// Whether it is a date, or one with a time, without a blank or a sign where digits belong.
bool isWrittenAsDate(std::string_view text) {
  if (!take("0000-00-00", text)) return false;
  if (text.empty()) return true;
  if (!take("T00:00:00", text)) return false;
  if (take(".0", text)) {
    while (take("0", text)) {
    }
  }
  return text == "Z";
}

/// "2026-01-31", or with a time in UTC: "2026-01-31T12:30:00Z", with a fraction if need be.
std::optional<StoreValue> parseDate(const std::string& text) {
  using namespace std::chrono;
  if (!isWrittenAsDate(text)) return std::nullopt;
  int year = 0;
  unsigned month = 0;
  unsigned day = 0;
  unsigned hour = 0;
  unsigned minute = 0;
  double second = 0;
  std::sscanf(text.c_str(), "%4d-%2u-%2uT%2u:%2u:%lf", &year, &month, &day, &hour, &minute,
              &second);
  const year_month_day calendar{std::chrono::year{year}, std::chrono::month{month},
                                std::chrono::day{day}};
  if (!calendar.ok() || hour >= 24 || minute >= 60 || second >= 60) return std::nullopt;
  const auto toTheMinute = sys_days(calendar) - referenceDate + hours(hour) + minutes(minute);
  return Date{duration<double>(toTheMinute).count() + second};
}

struct ValueType {
  const char* name;
  const char* expected;
  std::optional<StoreValue> (*parse)(const std::string&);
};

constexpr std::array<ValueType, 6> valueTypes{{
    {"int", "an integer", parseInteger},
    {"float", "a number", parseReal},
    {"bool", "true or false", parseBool},
    {"string", "a string", [](const std::string& text) { return std::optional<StoreValue>(text); }},
    {"data", "pairs of hexadecimal digits", parseData},
    {"date", "a date such as 2026-01-31 or 2026-01-31T12:30:00Z", parseDate},
}};

// The commands.

struct DefaultsArguments {
  explicit DefaultsArguments(const Options& global) : everyCommand(global) {}

  const Options& everyCommand;
  bool standard = false;
  bool json = false;
  std::string key;
  std::optional<StoreValue> value;

  /// Before the command's name --standard is the display's setting, which no store depends on.
  Suite suite() const {
    return standard || everyCommand.standardTold ? Suite::standard : Suite::group;
  }
};

Exit failed(const Failure& failure) {
  complain(failure);
  return Exit::failed;
}

Exit readOne(const Platform& platform, const DefaultsArguments& options) {
  const auto value = platform.defaults.value(options.suite(), options.key);
  if (!value) return failed(value.failure());
  if (!*value) return failed({options.key, "it has no value"});
  if (options.json) {
    printJson(json(*value));
  } else if (const auto* text = std::get_if<std::string>(&**value)) {
    // Whole for a script, and harmless for a person.
    std::cout << (isatty(STDOUT_FILENO) == 1 ? oneLine(*text) : *text) << '\n';
  } else if (const auto* data = std::get_if<Data>(&**value)) {
    std::cout << hexadecimal(*data) << '\n';
  } else {
    std::cout << describe(**value).text << '\n';
  }
  return Exit::done;
}

Exit readAll(const Platform& platform, const DefaultsArguments& options) {
  const auto keys = platform.defaults.keys(options.suite());
  if (!keys) return failed(keys.failure());
  Json all = Json::object();
  Exit exit = Exit::done;
  for (const std::string& key : *keys) {
    const auto value = platform.defaults.value(options.suite(), key);
    if (!value) {
      exit = failed(value.failure());
    } else if (!*value) {
      continue; // removed since the keys were listed
    } else if (options.json) {
      all[key] = json(*value);
    } else {
      std::cout << oneLine(key) << " = " << describe(**value).text << '\n';
    }
  }
  if (options.json) printJson(all);
  return exit;
}

void printChange(const DefaultsArguments& options, const std::string& key,
                 const std::optional<StoreValue>& value) {
  if (options.json) {
    Json line = {{"key", key}};
    line.update(value ? json(value) : Json{{"type", nullptr}, {"value", nullptr}});
    printJson(line);
  } else {
    std::cout << oneLine(key) << " = " << (value ? describe(*value).text : "absent") << std::endl;
  }
}

Exit watch(const CommandContext& context, const Platform& platform,
           const DefaultsArguments& options) {
  Subscription subscription;
  const Suite suite = options.suite();
  const auto print = [&](const std::string& key) {
    const auto value = platform.defaults.value(suite, key);
    if (value) {
      printChange(options, key, *value);
    } else {
      complain(value.failure());
    }
  };
  if (!options.key.empty()) {
    // A watch alone shows a store that can't be read as one without values.
    const auto value = platform.defaults.value(suite, options.key);
    if (!value) return failed(value.failure());
    printChange(options, options.key, *value);
    subscription = platform.defaults.watchKeys(suite, [&](const std::string& key) {
      if (key == options.key) print(key);
    });
  } else {
    subscription = platform.defaults.watchKeys(suite, print);
    const auto keys = platform.defaults.keys(suite);
    if (!keys) return failed(keys.failure());
    for (const std::string& key : *keys)
      print(key);
  }
  context.runLoop();
  return Exit::done;
}

Exit done(const Status& status) {
  return status ? Exit::done : failed(status.failure());
}

/// The value that "-int 5" and its like give; wrong usage is an exception of the option parser.
StoreValue typedValue(const std::string& typeName, const std::string& text) {
  const auto* type = std::find_if(valueTypes.begin(), valueTypes.end(),
                                  [&](const ValueType& known) { return typeName == known.name; });
  if (type == valueTypes.end()) throw CLI::ValidationError("-" + typeName, "no such type");
  const std::optional<StoreValue> value = type->parse(text);
  if (!value) throw CLI::ValidationError("-" + typeName, "takes " + std::string(type->expected));
  return *value;
}

void addTypedOptions(CLI::App& write, const std::shared_ptr<DefaultsArguments>& options) {
  // Words such as -int begin like a short option with its argument attached, and are taken as such.
  // It takes two arguments, so the value may look like an option too.
  using RestAndValue = std::pair<std::string, std::string>;
  for (const char letter : {'i', 'f', 'b', 's', 'd'}) {
    write
        .add_option_function<RestAndValue>(
            {'-', letter},
            [options, letter](const RestAndValue& given) {
              if (options->value) throw CLI::ValidationError("write", "takes one value");
              options->value = typedValue(letter + given.first, given.second);
            })
        ->group("");
  }
}

} // namespace

void addDefaultsCommand(CLI::App& program, CommandContext& context) {
  const auto options = std::make_shared<DefaultsArguments>(context.options);
  CLI::App* defaults = program.add_subcommand("defaults", "Read, write and watch the group store");
  defaults->fallthrough()->require_subcommand(1);
  defaults->add_flag("--standard", options->standard,
                     "The application's own defaults instead of the group store");
  defaults->add_flag("--json", options->json, "JSON: types and values; a line for each change");

  CLI::App* read = defaults->add_subcommand("read", "Print a key's value, or every key and value");
  read->fallthrough()->add_option("KEY", options->key);
  read->callback([options, &context] {
    const Platform& platform = context.platform();
    context.exit = options->key.empty() ? readAll(platform, *options) : readOne(platform, *options);
  });

  CLI::App* write = defaults->add_subcommand("write", "Give a key a value");
  write->fallthrough()->add_option("KEY", options->key)->required();
  write->footer("The value is one of\n"
                "  -int N        an integer\n"
                "  -float X      a number\n"
                "  -bool B       true or false\n"
                "  -string TEXT\n"
                "  -data HEX     bytes in hexadecimal\n"
                "  -date DATE    2026-01-31 or 2026-01-31T12:30:00Z");
  addTypedOptions(*write, options);
  write->callback([options, &context] {
    if (!options->value) throw CLI::RequiredError("A value such as -int 5");
    context.exit =
        done(context.platform().defaults.set(options->suite(), options->key, *options->value));
  });

  CLI::App* remove = defaults->add_subcommand("delete", "Remove a key");
  remove->fallthrough()->add_option("KEY", options->key)->required();
  remove->callback([options, &context] {
    context.exit = done(context.platform().defaults.remove(options->suite(), options->key));
  });

  CLI::App* watching =
      defaults->add_subcommand("watch", "Print the present values, then each change");
  watching->fallthrough()->add_option("KEY", options->key);
  watching->callback(
      [options, &context] { context.exit = watch(context, context.platform(), *options); });
}

} // namespace vitrelle::cli
