/// The one way from controls to a request.

#include "session/driver/read_run.h"

#include "materials/material_fixture.h"
#include "record/catalogue/graph_texts.h"
#include "record/catalogue/method_texts.h"
#include "session/inputs/graph_types.h"
#include "session/inputs/light/wavelength_list.h"
#include "session/inputs/materials/read_material.h"
#include "session/inputs/materials/read_ref_index.h"
#include "session/inputs/materials/refractive_index.h"
#include "session/inputs/methods.h"
#include "session/record_snapshot.h"

namespace lumivex {
namespace {

class ReadingARun : public MaterialSession {
 protected:
  RecordSnapshot Record() { return SnapshotOf(State()); }
  std::vector<std::string> Controls() {
    std::vector<std::string> values;
    for (const Form* form : Now().forms.All())
      for (const Control* control : form->Controls()) {
        const ControlValue value = control->Value();
        values.push_back(std::string(control->Name()) + "|" + value.text + "|" + (value.checked ? "1|" : "0|") +
                         std::string(control->ShownCaption()) + (control->Visible ? "|1" : "|0"));
      }
    return values;
  }
  RunRequest Read() {
    auto request = ReadRun(Now());
    EXPECT_TRUE(request) << LastText();
    return request.value_or(RunRequest{});
  }
};

TEST_F(ReadingARun, ChangesNothingWhateverTheGraphAndTheMethod) {
  std::vector<std::string> graphs = OfferedGraphs(), methods = OfferedMethods();
  for (const char* more : {"Differential cross-section v. angle", "Contour 2-angle", "Convergence", "Debye analysis"})
    graphs.emplace_back(more);
  for (const char* more : {"Diffraction new", "Huygens", "Aperture", "van de Hulst"}) methods.emplace_back(more);
  Do("click optDisp\nchoose cboDistrib Gamma");
  for (const auto& graph : graphs) {
    ChooseGraph(Now(), graph);
    // Lee diagrams put a choice of many sizes right.
    const bool lee = GraphOf({State().GraphType, State().GraphSubType}).family == Family::Lee;
    Do(lee ? "click optMono" : "click optDisp");
    for (const auto& method : methods) {
      ChooseMethod(Now(), method);
      const auto record = Record();
      const auto controls = Controls();
      const auto request = ReadRun(Now());
      SCOPED_TRACE(graph + ", " + method);
      ASSERT_TRUE(request) << LastText();
      ASSERT_EQ(Controls(), controls);
      for (const auto& [name, bytes] : Record()) ASSERT_EQ(bytes, record.at(name)) << name;
      EXPECT_EQ(request->words.graph, graph);
      EXPECT_EQ(request->words.method, method);
      ASSERT_EQ(request->Cloud(), !lee);
    }
  }
}

TEST_F(ReadingARun, ReadsTheFirstPlot) {
  const RunRequest r = Read();
  EXPECT_EQ(r.graph.code, (GraphCode{1, 1}));
  EXPECT_EQ(r.method.method, Method::Mie);
  EXPECT_TRUE(r.method.rays.empty());
  EXPECT_EQ(r.particle.radius, 10);
  EXPECT_FALSE(r.particle.sizeTyped);
  EXPECT_EQ(r.light.lambda, 0.65);
  EXPECT_EQ(r.Wavelengths(), 1);
  EXPECT_FALSE(r.Cloud());
  const auto& rows = std::get<AngleRun>(r.run).rows;
  EXPECT_EQ(rows.NANG, 901);
  EXPECT_EQ(rows.window, (RowWindow{1, 1801}));
  EXPECT_EQ(r.words.methodLabel, "Mie (plane wave)");
  EXPECT_EQ(r.words.sphere, "Sphere: Water (IAPWS 5C Complex)");
  EXPECT_EQ(r.words.medium, "Medium: Vacuum");
  EXPECT_EQ(r.words.scale, "Angle scale");
  const IndicesFound found = IndicesAt(r.particle.sphere, r.particle.medium, r.light.lambda);
  EXPECT_EQ(found.indices.sphereN, State().RefractReal);
  EXPECT_EQ(found.indices.sphereK, State().RefractImag);
}

TEST_F(ReadingARun, TakesTheRowsThatAveragesNeedAndAllOfThemForIntegrals) {
  Do("set txtXmin 20\nset txtXmax 60\nset cboStep 0.1");
  const AngleRows rows = std::get<AngleRun>(Read().run).rows;
  EXPECT_NEAR(rows.firstPoint, 201, 1e-9);
  EXPECT_EQ(rows.window, (RowWindow{199, 603}));
  ChooseGraph(Now(), "Phase function");
  EXPECT_EQ(std::get<AngleRun>(Read().run).rows.window, (RowWindow{1, 1801}));
}

TEST_F(ReadingARun, MaterialsAreThoseOfEachMenuEntry) {
  Now().state.RestoringSettings = 1;
  ASSERT_TRUE(ReadRefIndex1(Now(), Write("sphere.rix", IndexFileText(60))));
  ASSERT_TRUE(ReadRefIndex2(Now(), Write("medium.rix", IndexFileText(60))));
  const auto compare = [&](const char* menu) {
    Do(std::string("click ") + menu);
    for (const double lambda : {0.1, 0.2, 0.5, 0.65, 1.9, 4.5, 60.0, 1e7, 2e7}) {
      const IndicesFound found = IndicesAt(SphereMaterial(Now()), MediumMaterial(Now()), lambda);
      const auto relative = RefRel(Now(), lambda, LookupVoice::Quiet);
      const auto& s = State();
      ASSERT_EQ(relative.has_value(), found.failure == IndexFailure::None) << menu << " at " << lambda;
      if (!relative) continue;
      EXPECT_EQ(*relative, found.indices.RelativeRe()) << menu << " at " << lambda;
      EXPECT_EQ(s.RefRelImag, found.indices.RelativeIm()) << menu;
      EXPECT_EQ(s.RefractReal, found.indices.sphereN) << menu;
      EXPECT_EQ(s.RefractMedium, found.indices.medium) << menu;
    }
  };
  for (const bool cubic : {false, true}) {
    Now().form1.mnuInterpolate.Checked = cubic;
    for (const char* menu :
         {"mnuRI_Air2",    "mnuRI_Fixed2",  "mnuRI_File2",   "mnuRI_IAPWS2",   "mnuRI_User2",      "mnuRI_Segelstein2",
          "mnuRI_Perm2",   "mnuRI_Vacuum2", "mnuRI_Formula", "mnuRI_Ray",      "mnuRI_Segelstein", "mnuRI_File1",
          "mnuRI_Au",      "mnuRI_Ag",      "mnuRI_Cu",      "mnuRI_KayeLaby", "mnuRI_IAPWS",      "mnuRI_Air1",
          "mnuRI_Vacuum1", "mnuRI_Fixed1",  "mnuRI_Perm1",   "mnuRI_User1"})
      compare(menu);
  }
  EXPECT_TRUE(std::holds_alternative<FourPoints>(SphereMaterial(Now())));
  Now().form1.mnuRI_Au.Checked = true;
  EXPECT_TRUE(std::holds_alternative<FourPoints>(SphereMaterial(Now()))) << "of two the later one stands";
}

TEST_F(ReadingARun, TypedIndicesStandInTheRecordAndNotInTheCaption) {
  Do("set txtRefractReal 1.6\nset txtRefractImag 0.01\nset txtRefractMedium 1.2");
  EXPECT_EQ(State().SphereIndexTyped, 1);
  EXPECT_EQ(State().MediumIndexTyped, 1);
  Now().form1.lblSphere.Caption = "any other";
  const RunRequest r = Read();
  const auto& sphere = std::get<FixedIndex>(r.particle.sphere);
  EXPECT_EQ(sphere.n, 1.6);
  EXPECT_EQ(sphere.k, 0.01);
  EXPECT_EQ(std::get<FixedIndex>(r.particle.medium).n, 1.2);
  Do("click mnuRI_Au\nclick mnuUndo");
  EXPECT_EQ(State().SphereIndexTyped, 1) << "undone with the caption";
  Do("click mnuRI_Au");
  EXPECT_EQ(State().SphereIndexTyped, 0);
}

TEST_F(ReadingARun, AMediumWithoutAnIndexIsTold) {
  Do("click mnuRI_Fixed1\nclick mnuRI_Segelstein2");
  const double before = State().RefractMedium;
  EXPECT_FALSE(RefRel(Now(), 0.001));
  EXPECT_EQ(LastText(), "Help! RI of medium undefined");
  EXPECT_EQ(State().RefractMedium, before);
}

TEST_F(ReadingARun, SizesAreRadiiWhateverWasTyped) {
  Do("click mnuDiameter\nset txtRadius 7");
  EXPECT_EQ(Read().particle.radius, 3.5);
  Do("click mnuRI_IAPWS2\nclick mnuRadiusX\nset txtRadius 50");
  const RunRequest r = Read();
  EXPECT_EQ(r.particle.sizeTyped, 50);
  const double medium = MediumIndexAt(r.particle.medium, 0.65).value->n;
  EXPECT_NEAR(r.particle.radius * 2 * 3.14159265358979324 * medium / 0.65, 50, 1e-12);
  EXPECT_GT(medium, 1.3);
}

TEST_F(ReadingARun, SpectraAreValuesAndTheirInputsAreRepaired) {
  Do("choose cboWave RGB\nset cboStep 0.002\nclick mnuSpectrumFlat");
  RunRequest r = Read();
  ASSERT_TRUE(r.light.spectrum);
  EXPECT_EQ(r.light.spectrum->wavelength, (std::vector<float>{0, 0.65F, 0.51F, 0.44F}));
  EXPECT_EQ(r.light.spectrum->weight, (std::vector<float>{0, 1, 1, 1}));
  EXPECT_TRUE(r.light.spectrum->components);
  EXPECT_EQ(r.light.lambda, double{0.51F});
  EXPECT_EQ(r.words.light, "Flat");
  EXPECT_EQ(Get("cboStep"), "0.01");
  EXPECT_EQ(Get("chkComponents"), "true");
  EXPECT_EQ(std::get<SpectrumRun>(r.run).rows.NANG, 9001);
  // The radius that was typed, not that of the last run, says how many there are.
  Do("choose cboWave High\nset txtRadius 100");
  r = Read();
  EXPECT_EQ(r.Wavelengths(), 60);
  EXPECT_FALSE(r.light.spectrum->components);
  EXPECT_FLOAT_EQ(r.light.spectrum->wavelength[1], 0.38F + 0.32F / 120);
  EXPECT_EQ(WavelengthCount("High", 1), 1000);
  EXPECT_EQ(WavelengthCount("Low", 1e4), 7);
  EXPECT_EQ(WavelengthCount("Med.", 100), 30);
  EXPECT_EQ(WavelengthCount("15", 100), 15);
  EXPECT_EQ(WavelengthCount("x", 100), 1);
}

TEST_F(ReadingARun, MethodsTakeWhatTheyKnow) {
  Do("click mnuMieDebye\nclick mnuSize\nchoose cboType Debye\nset cboRays -3");
  MethodOptions m = Read().method;
  EXPECT_EQ(m.rays, (std::vector<int>{1, 1, 1, 1}));
  EXPECT_EQ(m.difference, Difference::MieLessDebye);
  EXPECT_FALSE(m.divideBySize);  // of Mie alone
  EXPECT_EQ(Read().words.methodLabel, "Mie - Debye series (p = 0 to 3)");
  EXPECT_EQ(Read().words.rays, "0 to 3");
  Do("dialog dlogP ok chkMultStep=true txtPmin=2 txtPmax=6 txtPstep=2\nchoose cboType Young\nchoose cboRays Multiple\n"
     "click chkDiffraction");
  m = Read().method;
  EXPECT_EQ(m.rays, (std::vector<int>{0, 0, 1, 0, 1, 0, 1}));
  EXPECT_EQ(m.difference, Difference::None);
  EXPECT_TRUE(m.addDiffraction);
  Do("click mnuHuygens\nset txtAngle 250");
  EXPECT_EQ(Read().method.counted, 250);
  Do("click mnuDiffractionNew");
  EXPECT_EQ(Read().method.diffraction, DiffractionForm::PartialWaves);
  EXPECT_TRUE(Read().method.rays.empty());
}

TEST_F(ReadingARun, TellsWhatCannotBeRun) {
  Do("dialog dlogIncident ok\ndialog dlogTwoAngle ok\nchoose cboGraph Contour 2-angle\n"
     "set dlogTwoAngle.txtAngle1min 170\nset dlogTwoAngle.txtAngle1max 20");
  EXPECT_FALSE(ReadRun(Now()));
  EXPECT_EQ(LastText(), "Minimum angle > Maximum angle");
}

TEST_F(ReadingARun, AxesHaveTheirPointsAngleAndRange) {
  Do("choose cboGraph Intensity v. radius\nset txtXmin 1\nset txtXmax 2\nset cboStep 0.1\nset txtAngle 90");
  auto axis = std::get<AxisRun>(Read().run);
  EXPECT_EQ(axis.points, 11);
  EXPECT_NEAR(axis.angle, 3.14159265358979324 / 2, 1e-15);
  Do("choose cboGraph Qext/Qsca/Qabs v. radius");
  axis = std::get<AxisRun>(Read().run);
  EXPECT_TRUE(axis.logSteps);
  EXPECT_EQ(axis.points, 1001);
  EXPECT_EQ(axis.angle, 0);
  Do("dialog dlogIncident ok txtIncidentPD=7 txtDistance=3\nchoose cboGraph Scattered power v. radius\n"
     "set txtF9_min 30\nset txtF9_max 60");
  const RunRequest r = Read();
  EXPECT_EQ(std::get<AxisRun>(r.run).range.low, 30);
  EXPECT_EQ(std::get<AxisRun>(r.run).range.high, 60);
  EXPECT_EQ(r.light.incidentDensity, 7);
  EXPECT_EQ(r.light.distance, 3);
}

TEST_F(ReadingARun, CloudsKeepTheirNumbersAndWords) {
  Do("click optDisp\nset cboSD 8\nset cboN 10");
  const RunRequest r = Read();
  const auto& sizes = std::get<NormalSizes>(r.sizes);
  EXPECT_EQ(sizes.relativeSD, 0.08);
  EXPECT_EQ(sizes.z.size(), 11U);
  EXPECT_TRUE(sizes.logarithmic);
  EXPECT_EQ(r.words.sizes, "Log-normal, Std Dev % 8, 10 samples");
  Do("click optMono");
  EXPECT_TRUE(Read().words.sizes.empty());
}

}  // namespace
}  // namespace lumivex
