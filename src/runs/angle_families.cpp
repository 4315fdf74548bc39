/// Runs over rows of scattering angle, at one wavelength or several.

#include <algorithm>
#include <optional>
#include <utility>

#include "runs/families.h"

namespace lumivex {

namespace {

/// Rows beyond the grid, which averaging and interpolation read; they stay 0.
constexpr int spareRows = 100;

void Lengthen(AmplitudeTable& table, int rows) {
  if (table.Rows() >= rows) return;
  AmplitudeTable longer(rows);
  for (int row = 1; row <= table.Rows(); ++row) longer.Set(row, table.Re(row), table.Im(row));
  table = std::move(longer);
}

/// |S|^2 of the rows of a window.
void AppendIntensities(const AmplitudeTable& S, RowWindow window, std::vector<double>& to) {
  const auto low = static_cast<std::size_t>(window.low);
  const std::size_t count = static_cast<std::size_t>(window.high - window.low + 1), first = to.size();
  const auto re = S.RealParts().subspan(low, count), im = S.ImaginaryParts().subspan(low, count);
  to.resize(first + count);
  double* cell = to.data() + first;
  for (std::size_t i = 0; i < count; ++i) cell[i] = re[i] * re[i] + im[i] * im[i];
}

/// Which light a table of the sky is of: a wavelength of a spectrum, from 1, or the only one.
struct SkyLight {
  const RunRequest& request;
  RowWindow window;
  std::optional<std::size_t> wavelength;
};

/// Adds the light of flattened drops over the sky, where that was asked for.
void AddSky(const SphereSolution& drop, const SkyLight& light, DropSky& sky) {
  if (drop.sky.empty()) return;
  sky.rows = light.window;
  sky.sectors = static_cast<int>(drop.sky.size()) / sky.RowCount();
  double red = 1, green = 1, blue = 1;
  if (light.wavelength) {
    const SpectrumOfLight& spectrum = *light.request.light.spectrum;
    const std::size_t i = *light.wavelength;
    const double weight = double{spectrum.weight[i]};
    red = weight * spectrum.red[i];
    green = weight * spectrum.green[i];
    blue = weight * spectrum.blue[i];
  }
  const auto add = [&drop](std::vector<float>& channel, double weight) {
    channel.resize(drop.sky.size());
    for (std::size_t i = 0; i < channel.size(); ++i) channel[i] += static_cast<float>(weight * double{drop.sky[i]});
  };
  add(sky.red, red);
  add(sky.green, green);
  add(sky.blue, blue);
}

FamilyEnd RunOneSphere(const RunRequest& request, const AngleRows& rows, const Setting& setting, TaskPool& pool,
                       Results& results) {
  SphereAsked asked{setting.x, setting.mRe, setting.mIm, rows.Grid(), rows.window, nullptr};
  AskForSphere(request.particle, setting, setting.radius, asked);
  // Here, for the root of a profile that has none would count as an arithmetic failure of the task.
  if (TraitsOf(request.method.method).layered)
    if (Refusal beyond = BeyondLimits(request.method, asked); !beyond.text.empty()) return {false, std::move(beyond)};
  SphereSolution sphere = SolveInParts(request.method, asked, pool);
  if (sphere.Refused()) return {false, sphere.refusal};
  if (sphere.rows.Empty()) return {};
  TellSphere(sphere, results.last);
  AngleFound found;
  found.S1 = std::move(sphere.S1);
  found.S2 = std::move(sphere.S2);
  found.S1b = std::move(sphere.S1b);
  found.S2b = std::move(sphere.S2b);
  found.rows = sphere.rows;
  found.waves = std::move(sphere.waves);
  found.wavefronts = std::move(sphere.wavefronts);
  AddSky(sphere, {request, rows.window, std::nullopt}, results.sky);
  results.found = std::move(found);
  return {true, {}};
}

FamilyEnd RunOneCloud(const RunRequest& request, const AngleRows& rows, const Setting& setting, TaskPool& pool,
                      Results& results) {
  AngleFound found;
  SettingsPlan plan{request, std::vector{setting}, rows.Grid(), rows.window, true, true, {}, {}};
  plan.keep = [&](std::size_t, SettingFound&& cloud) {
    TellSphere(cloud.sphere, results.last);
    results.last.samples = cloud.samples;
    found.S1 = std::move(cloud.sphere.S1);
    found.S2 = std::move(cloud.sphere.S2);
    found.crossRe = std::move(cloud.crossRe);
    found.crossIm = std::move(cloud.crossIm);
    found.rows = cloud.sphere.rows;
  };
  const SettingsEnd end = RunSettings(plan, pool);
  if (end.kept > 0) results.found = std::move(found);
  return {end.kept > 0, end.refusal};
}

}  // namespace

FamilyEnd RunAngles(const RunRequest& request, const AngleRun& run, TaskPool& pool, Results& results) {
  const SettingResult at = SettingAt(request, request.light.lambda);
  if (!at.Good()) return {false, at.refusal};
  TellSetting(at.setting, results.last);
  results.last.NANG = run.rows.NANG;
  FamilyEnd end = request.Cloud() ? RunOneCloud(request, run.rows, at.setting, pool, results)
                                  : RunOneSphere(request, run.rows, at.setting, pool, results);
  if (!end.found) return end;
  auto& found = std::get<AngleFound>(results.found);
  const int tableRows = run.rows.Grid().RowCount() + spareRows;
  for (AmplitudeTable* table : {&found.S1, &found.S2}) Lengthen(*table, tableRows);
  return end;
}

FamilyEnd RunSpectrum(const RunRequest& request, const SpectrumRun& run, TaskPool& pool, Results& results) {
  const SpectrumOfLight& light = *request.light.spectrum;
  const RowWindow window = run.rows.window;
  std::vector<Setting> settings;
  for (int i = 1; i <= light.Count(); ++i) {
    const SettingResult at = SettingAt(request, double{light.wavelength[static_cast<std::size_t>(i)]});
    if (!at.Good()) return {false, at.refusal};
    settings.push_back(at.setting);
  }
  SettingsPlan plan{request, settings, run.rows.Grid(), window, false, false, {}, {}};
  SpectrumFound found;
  const auto rows = static_cast<std::size_t>(window.high - window.low + 1);
  const auto count = static_cast<std::size_t>(light.Count());
  found.perpendicular.reserve(count * rows);
  found.parallel.reserve(count * rows);
  found.waveNumber.assign(count + 1, 0.0);
  plan.keep = [&](std::size_t i, SettingFound&& sphere) {
    AppendIntensities(sphere.sphere.S1, window, found.perpendicular);
    AppendIntensities(sphere.sphere.S2, window, found.parallel);
    found.waveNumber[static_cast<std::size_t>(++found.done)] = settings[i].WaveNumber();
    TellSphere(sphere.sphere, results.last);
    AddSky(sphere.sphere, {request, window, i + 1}, results.sky);
    results.last.samples = sphere.samples;
    found.S1 = std::move(sphere.sphere.S1);
    found.S2 = std::move(sphere.sphere.S2);
  };
  plan.place = [](std::size_t i, RunProgress& progress) { progress.wavelength = static_cast<int>(i) + 1; };
  SettingsEnd end = RunSettings(plan, pool);
  if (!end.refusal.text.empty() || found.done == 0) return {false, std::move(end.refusal)};
  // One wavelength stands for all where only one can be told.
  TellSetting(settings[static_cast<std::size_t>(light.Middle() - 1)], results.last);
  results.last.NANG = run.rows.NANG;
  results.found = std::move(found);
  return {true, {}};
}

}  // namespace lumivex
