/// Fuzzes what writes files: the catalogue of materials, whose entries may have any texts, and WriteWholeFile, whose
/// names may be anything. The first line of the input is a name, the rest a content.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>

#include "fuzz/require.h"
#include "materials/files/catalogue_file.h"
#include "record/text_file.h"

namespace {

using namespace lumivex;
namespace fs = std::filesystem;

/// A folder of the run's own.
const fs::path& Folder() {
  static const fs::path folder = [] {
    const auto unique = MakeUniqueFile(fs::temp_directory_path().string());
    Require(unique.has_value());
    fs::path made = *unique + ".d";
    fs::remove(*unique);
    fs::create_directory(made);
    return made;
  }();
  return folder;
}

/// Entries are read back as many as they were, whatever their texts.
void CheckCatalogue(const std::string& name, std::string_view content) {
  CatalogueEntry entry{name, {}};
  for (auto& number : entry.numbers) {
    const auto end = std::min(content.find('\n'), content.size());
    number = content.substr(0, end);
    content.remove_prefix(std::min(end + 1, content.size()));
  }
  std::istringstream text(CatalogueText({entry, {"Ice", {"1", "0", "0", "0", "0", "0", "0", "0"}}}));
  const Catalogue again = ReadCatalogueFile(text);
  Require(again.failure.empty() && again.entries.size() == 2 && again.entries[1].name == "Ice");
}

/// What is written is read back, or why not is told; nothing else is left in the folder.
void CheckFile(std::string name, std::string_view content) {
  for (char& c : name)
    if (c == '/' || c == '\0') c = '_';
  if (name == "." || name == "..") return;
  const std::string path = (Folder() / name).string();
  const std::string failure = WriteWholeFile(path, content);
  Require(!failure.empty() || ReadWholeFile(path) == content);
  Require(!failure.empty() || std::distance(fs::directory_iterator(Folder()), {}) == 1);
  std::error_code ignored;
  if (!name.empty()) fs::remove(path, ignored);
  Require(fs::is_empty(Folder()));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const auto end = std::min(text.find('\n'), text.size());
  const std::string name(text.substr(0, end));
  const std::string_view content = text.substr(std::min(end + 1, text.size()));
  CheckCatalogue(name, content);
  CheckFile(name, content);
  return 0;
}
