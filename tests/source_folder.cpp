#include "source_folder.h"

namespace lumivex {

std::string SourceFolder() {
  return LUMIVEX_SOURCE_DIR;
}

}  // namespace lumivex
