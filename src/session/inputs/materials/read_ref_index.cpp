#include "session/inputs/materials/read_ref_index.h"

#include <fstream>
#include <memory>

#include "materials/files/index_import.h"
#include "materials/files/input_items.h"
#include "materials/files/readable_text.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/materials/read_material.h"
#include "session/recent_files.h"

namespace lumivex {

namespace {

constexpr const char* opening = "Error in refractive index data file: ";
const FileDialog indexFiles = {"Refractive index data",
                               "Lumivex refractive index data files (*.rix);;"
                               "Tables of wavelength, n and k (*.csv *.txt *.yml *.yaml)",
                               ""};

/// Only the sphere's reader quotes a wrong first line.
enum class Reader { Sphere, Medium };

std::string MessageOf(const IndexFileResult& result, const std::string& file, Reader reader) {
  const std::string path = ReadablePath(file);
  switch (result.fault) {
    case IndexFileFault::FirstLine:
      if (reader == Reader::Medium) return opening + path;
      return opening + path + "\n\nThe first line of this file should be \"Lumivex 300\"\nbut it reads \"" +
             result.detail + "\"";
    case IndexFileFault::Unit:
      return opening + path + "\n\nLine 14 must specify the units of wavelength (m or mm or um or nm)";
    case IndexFileFault::Type:
      return opening + path + "\n\nLine 15 must indicate whether the data is Complex or Real";
    default:
      return opening + path + "\n\n" + result.detail;
  }
}

std::string StemOf(const std::string& path) {
  const std::string name = FileNameOf(path);
  return name.substr(0, name.find_last_of('.'));
}

IndexFileResult ReadAny(const std::string& path) {
  std::ifstream file;
  if (std::string failure = OpenInput(file, path); !failure.empty())
    return {IndexFileFault::Data, std::move(failure), {}};
  const bool yaml = EndsWith(path, ".yml") || EndsWith(path, ".yaml");
  if (!yaml && !EndsWith(path, ".csv") && !EndsWith(path, ".txt")) return ReadIndexFile(file);
  IndexFileResult result = yaml ? ReadIndexYaml(file) : ReadIndexCsv(file);
  result.table.name = StemOf(path);
  return result;
}

bool Read(Session& session, const std::string& path, Reader reader) {
  session.state.LastFile = path;
  IndexFileResult result = ReadAny(path);
  if (result.fault != IndexFileFault::None) {
    session.platform.Message("Error", MessageOf(result, path, reader));
    return false;
  }
  result.table.name = NameOfMaterial(result.table.name);
  MaterialState& s = session.state;
  const auto table = std::make_shared<const IndexTable>(std::move(result.table));
  const bool sphere = reader == Reader::Sphere;
  (sphere ? s.FileRows1 : s.FileRows2) = table->count;
  (sphere ? s.FileFirst1 : s.FileFirst2) = table->lambda[1];
  (sphere ? s.FileLast1 : s.FileLast2) = table->lambda.back();
  (sphere ? s.FileName1 : s.FileName2) = table->name;
  (sphere ? session.state.SphereName : session.state.MediumName) = table->name;
  (sphere ? s.FileLambda1 : s.FileLambda2) = table->lambda;
  (sphere ? s.FileData1 : s.FileData2) = table->rows;
  (sphere ? s.FileTable1 : s.FileTable2) = table;
  NoteFile(session, sphere ? FileKind::SphereIndex : FileKind::MediumIndex, path);
  session.events.Raise("txtLambda_change");
  session.form1.txtLambda.BackColour = colours::White;
  return true;
}

bool AskAndRead(Session& session, Reader reader) {
  const auto path = session.platform.OpenFileName(indexFiles);
  return path && Read(session, *path, reader);
}

}  // namespace

bool ReadRefIndex1(Session& session) {
  return AskAndRead(session, Reader::Sphere);
}

bool ReadRefIndex2(Session& session) {
  return AskAndRead(session, Reader::Medium);
}

bool ReadRefIndex1(Session& session, const std::string& path) {
  return Read(session, path, Reader::Sphere);
}

bool ReadRefIndex2(Session& session, const std::string& path) {
  return Read(session, path, Reader::Medium);
}

}  // namespace lumivex
