#include "muxhost/report/setting_names.h"

#include <algorithm>
#include <charconv>

namespace quorvel::muxhost {

namespace {

/// A name with one number in brackets taken out.
struct Numbered {
  std::string before;
  std::string behind;
  std::vector<int> numbers;  ///< none where the name has none
};

/// `open` is where the brackets begin.
Numbered Parted(const std::string& name, std::size_t open) {
  const auto close = open == std::string::npos ? open : name.find(')', open);
  if (close == std::string::npos) return {name, {}, {}};
  int number = 0;
  const char* const first = name.data() + open + 1;
  const char* const last = name.data() + close;
  if (std::from_chars(first, last, number).ptr != last) return {name, {}, {}};
  return {name.substr(0, open + 1), name.substr(close), {number}};
}

std::string InWords(std::vector<int> numbers) {
  std::ranges::sort(numbers);
  std::string words;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    std::size_t end = i;
    while (end + 1 < numbers.size() && numbers[end + 1] == numbers[end] + 1) ++end;
    if (!words.empty()) words += ", ";
    words += std::to_string(numbers[i]);
    if (end > i) words += "-" + std::to_string(numbers[end]);
    i = end;
  }
  return words;
}

/// Those that differ in one number of brackets, which `open_of` finds.
template <class OpenOf>
std::vector<std::string> GatheredBy(const std::vector<std::string>& names, OpenOf open_of) {
  std::vector<Numbered> groups;
  for (const std::string& name : names) {
    Numbered parted = Parted(name, open_of(name));
    const auto alike = std::ranges::find_if(groups, [&](const Numbered& it) {
      return it.before == parted.before && it.behind == parted.behind;
    });
    if (alike == groups.end()) {
      groups.push_back(std::move(parted));
    } else {
      alike->numbers.insert(alike->numbers.end(), parted.numbers.begin(), parted.numbers.end());
    }
  }
  std::vector<std::string> gathered;
  for (const Numbered& it : groups) {
    gathered.push_back(it.before + InWords(it.numbers) + it.behind);
  }
  return gathered;
}

}  // namespace

std::vector<std::string> Gathered(const std::vector<std::string>& names) {
  const auto last = [](const std::string& name) { return name.rfind('('); };
  const auto first = [](const std::string& name) { return name.find('('); };
  return GatheredBy(GatheredBy(names, last), first);
}

}  // namespace quorvel::muxhost
