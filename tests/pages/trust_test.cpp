/// What a run says of itself, judged by runs whose standing is known.

#include "pages/trust/trust_line.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

using Standing = TrustMark::Standing;

class Trust : public ScriptedSession {
 protected:
  /// The mark whose text holds these words; none has an empty text.
  TrustMark MarkOf(const std::string& words) {
    for (const TrustMark& mark : TrustOf(*runner.Current().state.LastResults))
      if (mark.text.find(words) != std::string::npos) return mark;
    return {};
  }
  std::string Texts() {
    std::string texts;
    for (const TrustMark& mark : TrustOf(*runner.Current().state.LastResults)) texts += mark.text + "; ";
    return texts;
  }
};

TEST_F(Trust, TellsSizeTermsAndHowFarTwoWaysToQextAgree) {
  EXPECT_EQ(MarkOf("x = ").text, "x = 96.66, |m| x = 128.8") << Texts();
  EXPECT_EQ(MarkOf(" terms").text, "135 terms");
  EXPECT_EQ(MarkOf("exact").standing, Standing::Good);
  EXPECT_EQ(MarkOf("Qext and S(0)").standing, Standing::Good) << Texts();
  // Angles without the forward direction know nothing of it.
  Do("set txtXmin 10\nclick cmdNewPlot");
  EXPECT_EQ(MarkOf("Qext and S(0)").text, "");
}

TEST_F(Trust, IsThatOfTheWorstSphereOfARun) {
  Do("click mnuRI_Fixed1\nset txtRefractReal 1.333\nset txtRefractImag 0\nchoose cboType Airy\nset cboRays 2\n"
     "choose cboGraph Lee diagram: radius\nset txtXmin 136\nset txtXmax 146\nset txtRadius 1\nset txtRmax 1000\n"
     "set txtRstep 10\nset cboStep 1\nclick cmdNewPlot");
  EXPECT_EQ(MarkOf("Airy").text, "Airy does not hold") << Texts();
  EXPECT_NE(MarkOf("x = ").text.find("x = 9.7"), std::string::npos) << Texts();
  // Light of many wavelengths, from the longest to the shortest, and clouds, from the smallest drop to the largest.
  Do("reset\nset cboWave 30\nset txtRadius 100\nset cboStep 1\nclick cmdNewPlot");
  EXPECT_NE(MarkOf("x = ").text.find(" to 1"), std::string::npos) << Texts();
  Do("reset\nclick optDisp\nset txtRadius 20\nset cboStep 1\nclick cmdNewPlot");
  EXPECT_NE(MarkOf("x = ").text.find(" to "), std::string::npos) << Texts();
  // A dipole without absorption has no part that the theorem could be held against.
  Do("reset\nclick mnuRI_Fixed1\nset txtRefractReal 1.5\nset txtRefractImag 0\nchoose cboType Rayleigh\n"
     "set txtRadius 0.001\nclick cmdNewPlot");
  EXPECT_EQ(MarkOf("Qext").text, "") << Texts();
}

TEST_F(Trust, KnowsTheRangeOfEachMethod) {
  struct Case {
    const char *method, *radius, *words;
    Standing standing;
  };
  for (const Case& c : {Case{"Rayleigh", "0.005", "Rayleigh holds", Standing::Good},
                        {"Rayleigh", "10", "too large for Rayleigh", Standing::Outside},
                        {"Airy", "1000", "Airy holds", Standing::Good},
                        {"Airy", "200", "Airy is rough", Standing::Doubtful},
                        {"Airy", "10", "Airy does not hold", Standing::Outside},
                        {"Young mod", "10", "ray optics does not hold", Standing::Outside},
                        {"Descartes", "500", "ray optics holds", Standing::Good},
                        {"Young", "500", "fringes misplaced", Standing::Doubtful},
                        {"Debye", "10", "exact terms", Standing::Good}}) {
    Do("reset\nchoose cboType " + std::string(c.method) + "\nset txtRadius " + c.radius + "\nclick cmdNewPlot");
    const TrustMark mark = MarkOf(c.words);
    EXPECT_EQ(mark.text, c.words) << c.method << " " << c.radius << ": " << Texts();
    EXPECT_EQ(mark.standing, c.standing) << c.method << " " << c.radius;
  }
  // Diffraction is judged by angles.
  Do("reset\nchoose cboType Diffraction\nset txtXmax 15\nclick cmdNewPlot");
  EXPECT_EQ(MarkOf("diffraction holds").standing, Standing::Good) << Texts();
  Do("set txtXmax 90\nclick cmdNewPlot");
  EXPECT_EQ(MarkOf("diffraction alone").standing, Standing::Outside) << Texts();
}

TEST_F(Trust, StepsAreHeldAgainstTheRipples) {
  EXPECT_EQ(MarkOf("steps").standing, Standing::Good);
  Do("set txtRadius 100\nclick cmdNewPlot");
  EXPECT_EQ(MarkOf("steps").text, "steps miss ripples of 0.186\u00B0");
  EXPECT_EQ(MarkOf("steps").standing, Standing::Outside);
  // A cloud has no ripples to miss.
  Do("click optDisp\nclick cmdNewPlot");
  EXPECT_EQ(MarkOf("steps").text, "");
}

TEST_F(Trust, OfAnAxisBothEndsCount) {
  Do("choose cboGraph Intensity v. radius\nclick cmdNewPlot");
  EXPECT_NE(MarkOf("x = ").text.find(" to "), std::string::npos) << Texts();
}

}  // namespace
}  // namespace lumivex
