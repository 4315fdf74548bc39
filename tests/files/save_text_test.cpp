#include "files/reports/save_text.h"

#include <gmock/gmock.h>

#include "files/batch_fixture.h"
#include "pages/page_table.h"

namespace lumivex {
namespace {

using testing::HasSubstr;
using testing::Not;

class TextReports : public BatchSession {
 protected:
  std::string Report() {
    Do("save " + Path("report.txt") + "\nclick mnuSaveText");
    return Content("report.txt");
  }
};

TEST_F(TextReports, HaveTheParametersAndColumnsOfCsv) {
  Do("set cboStep 30\nclick cmdNewPlot\nset txtRadius 5\nclick cmdOverPlot");
  const std::string report = Report();
  const Page& page = runner.Current().page;
  for (const auto& line : HeaderOf(page)) EXPECT_THAT(report, HasSubstr("\n" + line + "\n"));
  EXPECT_THAT(report, HasSubstr("\n\n" + TableAsText(page)));
  EXPECT_TRUE(report.starts_with("Mie scattering:  Water in a vacuum\n\nRun 1\n")) << report;
  EXPECT_THAT(report, Not(HasSubstr("S1 Real")));
}

TEST_F(TextReports, TellTheRunAndNotWhatIsTypedSince) {
  Do("set cboStep 30\nclick cmdNewPlot");
  const std::string report = Report();
  Do("set txtRadius 33\nset txtLambda 0.4\nchoose cboType Airy\nclick mnuRI_Vacuum1");
  EXPECT_EQ(Report(), report);
}

TEST_F(TextReports, AmplitudesAreThoseOfTheRunThatIsShown) {
  Do("click mnuS1S2\nset cboStep 60\nclick cmdNewPlot");
  EXPECT_THAT(Report(), HasSubstr("\nAngle\tS1 Real\tS1 Imaginary\t"));
  Do("set cboStep 30\nclick mnuS1S2\nclick cmdNewPlot");
  EXPECT_THAT(Report(), Not(HasSubstr("S1 Real")));
}

TEST_F(TextReports, EachKindOfDataAsksInItsOwnWords) {
  RunRequest asked;
  EXPECT_EQ(ReportKindOf(asked), SaveKind::TextReport);
  asked.graph = GraphOf({31, 1});
  EXPECT_EQ(ReportKindOf(asked), SaveKind::VolumeData);
  asked.graph = GraphOf({13, 1});
  EXPECT_EQ(ReportKindOf(asked), SaveKind::TextReport);
  asked.method.beam.kind = Illumination::Kind::Gaussian;
  EXPECT_EQ(ReportKindOf(asked), SaveKind::GaussianConvergence);
  asked.graph = GraphOf({19, 1});
  EXPECT_EQ(ReportKindOf(asked), SaveKind::ImpulseData);
}

}  // namespace
}  // namespace lumivex
