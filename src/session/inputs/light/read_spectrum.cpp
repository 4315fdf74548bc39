#include "session/inputs/light/read_spectrum.h"

#include <fstream>

#include "materials/files/input_items.h"
#include "materials/files/readable_text.h"
#include "materials/files/spectrum_file.h"
#include "session/recent_files.h"

namespace lumivex {

namespace {

std::string MessageOf(const SpectrumFile& file, const std::string& path) {
  const std::string opening = "Error in spectrum data file";
  switch (file.fault) {
    case SpectrumFileFault::FirstLine:
      return opening;
    case SpectrumFileFault::Minimum:
      return "Error in spectrum data file: minimum wavelength incorrect";
    case SpectrumFileFault::Maximum:
      return "Error in spectrum data file: maximum wavelength incorrect";
    default:
      return opening + ": " + ReadablePath(path) + "\n\n" + file.detail;
  }
}

}  // namespace

bool ReadSpectrum(Session& session) {
  const auto path = session.platform.OpenFileName({"Spectrum data", "Lumivex spectrum data files (*.spe)", ""});
  return path && ReadSpectrum(session, *path);
}

bool ReadSpectrum(Session& session, const std::string& path) {
  auto& s = session.state;
  s.LastFile = path;
  std::ifstream stream;
  SpectrumFile file;
  file.detail = OpenInput(stream, path);
  file.fault = SpectrumFileFault::Data;
  if (file.detail.empty()) file = ReadSpectrumFile(stream);
  if (file.fault != SpectrumFileFault::None) {
    session.platform.Message("Error", MessageOf(file, path));
    return false;
  }
  s.SpectrumFileWavelength = std::move(file.wavelength);
  s.SpectrumFileValue = std::move(file.value);
  s.SpectrumFileMin = file.minimum;
  s.SpectrumFileMax = file.maximum;
  s.SpectrumFilePoints = file.points;
  s.SpectrumFileNonUniform = file.nonUniform ? 1 : 0;
  s.SpectrumFileLoaded = 1;
  s.SpectrumFileName = path;
  NoteFile(session, FileKind::Spectrum, path);
  return true;
}

}  // namespace lumivex
