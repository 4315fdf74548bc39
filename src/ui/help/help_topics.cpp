#include "ui/help/help_topics.h"

#include <algorithm>
#include <cctype>

#include "record/form.h"
#include "record/layout/input_name.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

bool IsPartOfWord(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || static_cast<unsigned char>(c) >= 0x80;
}

std::string Small(std::string_view text) {
  std::string small(text);
  std::ranges::transform(small, small.begin(),
                         [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); });
  return small;
}

/// A line as it is read: of links and pictures their words, without the marks of bold, italic and code.
std::string Plain(std::string_view line) {
  std::string plain;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (c == ']' && i + 1 < line.size() && line[i + 1] == '(') {
      const std::size_t end = line.find(')', i);
      i = std::min(end, line.size());
    } else if (c == '\\' && i + 1 < line.size()) {
      plain += line[++i];
    } else if (c == '|') {
      plain += ' ';
    } else if (c != '*' && c != '`' && c != '[' && c != ']') {
      plain += c;
    }
  }
  return plain;
}

std::vector<std::string> WordsOf(std::string_view text) {
  std::vector<std::string> words;
  const std::string small = Small(text);
  for (std::size_t i = 0; i < small.size();) {
    if (!IsPartOfWord(small[i])) {
      ++i;
      continue;
    }
    std::size_t end = i;
    while (end < small.size() && IsPartOfWord(small[end])) ++end;
    words.push_back(small.substr(i, end - i));
    i = end;
  }
  return words;
}

/// How many words of a text begin so.
int CountOf(const std::vector<std::string>& words, const std::string& beginning) {
  return static_cast<int>(std::ranges::count_if(words, [&](const auto& word) { return word.starts_with(beginning); }));
}

/// 0 where a word is missing.
double RankOf(const HelpTopic& topic, const std::vector<std::string>& wanted) {
  constexpr double ofTitle = 100;
  const auto title = WordsOf(topic.title), text = WordsOf(topic.text);
  double rank = 0;
  for (const auto& word : wanted) {
    const int inTitle = CountOf(title, word), inText = CountOf(text, word);
    if (inTitle + inText == 0) return 0;
    rank += (inTitle > 0 ? ofTitle / static_cast<double>(title.size()) : 0) +
            10.0 * inText / static_cast<double>(text.size() + 50);
  }
  return rank;
}

/// A name up to a mark: before " v. " stands what a graph shows, before ": " what kind it is.
std::string_view UpTo(std::string_view mark, std::string_view name) {
  return name.substr(0, name.find(mark));
}

struct InputTopic {
  std::string_view control, title;
};

// Titles of "Inputs, one by one"; the methods and graphs that are chosen have pages of their own.
constexpr InputTopic inputTopics[] = {
    {"cboPol", "Polarisation"},
    {"cboRays", "Orders of light"},
    {"chkDiffraction", "Orders of light"},
    {"cboQmin", "Surface wave"},
    {"cboQmax", "Surface wave"},
    {"txtSWAmp", "Surface wave"},
    {"cboBright", "Brightness of colours"},
    {"cboLee", "Brightness of colours"},
    {"txtRadius", "Size"},
    {"txtRmax", "Size"},
    {"txtRstep", "Size"},
    {"optMono", "Clouds"},
    {"optDisp", "Clouds"},
    {"cboDistrib", "Clouds"},
    {"cboSD", "Clouds"},
    {"cboN", "Clouds"},
    {"cboWave", "Wavelengths"},
    {"txtLambda", "Wavelengths"},
    {"chkComponents", "Wavelengths"},
    {"optPoint", "Sun or point"},
    {"optSun", "Sun or point"},
    {"txtRefractReal", "Refractive index"},
    {"txtRefractImag", "Refractive index"},
    {"txtRefractMedium", "Refractive index"},
    {"cboYmax", "Vertical range"},
    {"cboYmin", "Vertical range"},
    {"OptLog", "Vertical range"},
    {"optLinear", "Vertical range"},
    {"txtXmin", "Horizontal range"},
    {"txtXmax", "Horizontal range"},
    {"cboStep", "Horizontal range"},
    {"OptXLinear", "Horizontal range"},
    {"optXLog", "Horizontal range"},
    {"txtAngle", "Further ranges"},
    {"txtF9_fixed", "Further ranges"},
    {"txtF9_min", "Further ranges"},
    {"txtF9_max", "Further ranges"},
    {"txtF9_step", "Further ranges"},
    {"cmdNewPlot", "Commands"},
    {"cmdOverPlot", "Commands"},
    {"cmdReplot", "Commands"},
    {"cmdSimulation", "Commands"},
    {"cmdStop", "Commands"},
};

}  // namespace

std::vector<HelpTopic> TopicsOf(std::string_view markdown, const std::string& file) {
  std::vector<HelpTopic> topics;
  int number = 0;
  while (!markdown.empty()) {
    const std::size_t end = std::min(markdown.find('\n'), markdown.size());
    const std::string_view line = markdown.substr(0, end);
    markdown.remove_prefix(std::min(end + 1, markdown.size()));
    const std::size_t marks = std::min(line.find_first_not_of('#'), line.size());
    if (marks > 0 && marks <= 3 && marks < line.size() && line[marks] == ' ') {
      topics.push_back({file, static_cast<int>(marks), std::string(Trim(Plain(line.substr(marks)))), number++, ""});
    } else if (!topics.empty() && !line.starts_with("![") && !line.starts_with("|---")) {
      topics.back().text += Plain(line) + "\n";
    }
  }
  return topics;
}

std::string AnchorOf(std::string_view title) {
  std::string anchor;
  for (const char c : Small(title)) {
    if (IsPartOfWord(c) || c == '-' || c == '_') anchor += c;
    if (c == ' ') anchor += '-';
  }
  return anchor;
}

std::vector<std::size_t> SearchTopics(const std::vector<HelpTopic>& topics, std::string_view words) {
  const auto wanted = WordsOf(words);
  std::vector<std::pair<double, std::size_t>> ranked;
  for (std::size_t i = 0; i < topics.size(); ++i)
    if (const double rank = RankOf(topics[i], wanted); rank > 0) ranked.emplace_back(-rank, i);
  std::ranges::stable_sort(ranked, {}, [](const auto& entry) { return entry.first; });
  std::vector<std::size_t> found;
  for (const auto& [rank, place] : ranked) found.push_back(place);
  return found;
}

std::size_t TopicNamed(const std::vector<HelpTopic>& topics, std::string_view name) {
  const auto place = [&](auto matches) {
    return static_cast<std::size_t>(std::ranges::find_if(topics, matches) - topics.begin());
  };
  const std::size_t same = place([&](const HelpTopic& topic) { return SameName(topic.title, name); });
  if (same < topics.size()) return same;
  for (const std::string_view mark : {" v. ", ": "}) {
    if (name.find(mark) == std::string_view::npos) continue;
    const std::string_view kind = UpTo(mark, name);
    const std::size_t like = place([&](const HelpTopic& topic) { return SameName(UpTo(mark, topic.title), kind); });
    if (like < topics.size()) return like;
  }
  return topics.size();
}

std::size_t TopicFor(const std::vector<HelpTopic>& topics, std::string_view name) {
  if (const std::size_t named = TopicNamed(topics, name); named < topics.size()) return named;
  for (auto words = WordsOf(name); !words.empty(); words.pop_back()) {
    std::string together;
    for (const auto& word : words) together += word + " ";
    if (const auto found = SearchTopics(topics, together); !found.empty()) return found.front();
  }
  return 0;
}

std::string HelpNameOf(const Control& control) {
  const bool input = control.Kind() == ControlKind::TextInput || control.Kind() == ControlKind::SelectionList;
  if (control.Owner().Name() == "Form1")
    for (const auto& [name, title] : inputTopics)
      if (control.Name() == name) return std::string(title);
  if (control.Name() == "cboType" || control.Name() == "cboGraph") return control.Value().text;
  return input || control.ShownCaption().empty() ? NameOfInput(control) : std::string(control.ShownCaption());
}

}  // namespace lumivex
