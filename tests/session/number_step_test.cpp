#include "session/live/number_step.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "session/live/slides.h"
#include "session_fixture.h"

namespace lumivex {
namespace {

TEST(NumberStep, StepsTheLastDigitThatIsTyped) {
  struct Case {
    const char* text;
    int steps;
    const char* expected;  ///< empty for none
  };
  for (const Case& each : {
           Case{"0.65", 1, "0.66"},
           {"10", 1, "11"},
           {"1.3330", 1, "1.3331"},
           {"1.3330", -1, "1.3329"},
           {"9", 1, "10"},
           {"0.99", 1, "1.00"},
           {"1.00", -1, "0.99"},
           {"0.1", -2, "-0.1"},
           {"-0.1", 1, "0.0"},
           {"-1", 3, "2"},
           {".5", 1, "0.6"},
           {"1e-3", 1, "2e-3"},
           {"2.5E4", -1, "2.4E4"},
           {" 7 ", 1, "8"},
           {"+7", 1, "8"},
           {"0,65", 1, "0.66"},
           {"007", 1, "8"},
           {"5.", 1, "6"},
           {"", 1, ""},
           {"x", 1, ""},
           {"1.2.3", 1, ""},
           {"1.23456789012345678", 1, ""},
       }) {
    EXPECT_EQ(StepLastDigit(each.text, each.steps).value_or(""), each.expected) << '"' << each.text << '"';
  }
}

class NumberInputs : public ScriptedSession {};

TEST_F(NumberInputs, AStepStaysWithinWhatTheInputHolds) {
  const Session& session = runner.Current();
  const Form1& form = session.form1;
  Do("set txtRadius 1\nset txtXmax 180\nset txtAngle 0\nset txtRefractImag 0");
  EXPECT_EQ(SteppedText(session, form.txtRadius, 1), "2");
  EXPECT_FALSE(SteppedText(session, form.txtRadius, -1)) << "a radius of 0";
  EXPECT_EQ(SteppedText(session, form.txtXmax, -1), "179");
  EXPECT_FALSE(SteppedText(session, form.txtXmax, 1)) << "beyond straight back";
  EXPECT_FALSE(SteppedText(session, form.txtXmin, -1));
  EXPECT_FALSE(SteppedText(session, form.txtAngle, -1));
  EXPECT_EQ(SteppedText(session, form.txtRefractImag, 1), "1");
  EXPECT_FALSE(SteppedText(session, form.txtRefractImag, -1));
}

class Slides : public ScriptedSession {};

TEST_F(Slides, PlacesAreNumbersThatCanBeRead) {
  const SlideRange radius{5, 50, true, false}, wavelength{0.38, 0.7, false, false}, rays{0, 10, false, true};
  EXPECT_EQ(radius.TextAt(0), "5");
  EXPECT_EQ(radius.TextAt(1), "50");
  EXPECT_EQ(radius.TextAt(0.5), "15.81");
  EXPECT_EQ(wavelength.TextAt(0.3333333), "0.4867");
  EXPECT_EQ(rays.TextAt(0.26), "3");
  for (const auto& range : {radius, wavelength, rays})
    for (const double place : {0.0, 0.2, 0.5, 1.0})
      EXPECT_NEAR(range.PlaceOf(Val(range.TextAt(place))), place, 0.001) << range.low;
  EXPECT_EQ(radius.PlaceOf(1000), 1);
  EXPECT_EQ(radius.PlaceOf(-1), 0);
  // Ends may be the wrong way round, or leave no room for ratios.
  EXPECT_EQ((SlideRange{50, 5, true, false}.TextAt(0)), "50");
  EXPECT_EQ((SlideRange{0, 50, true, false}.TextAt(0.5)), "25");
}

TEST_F(Slides, ASweepIsOneStepOfUndoAndCountsAsTyped) {
  Session& session = runner.Current();
  const std::size_t past = session.undo.past.size();
  for (const char* radius : {"11", "12", "13"}) UserSlides(session, Slid::Radius, radius);
  EXPECT_EQ(session.undo.past.size(), past + 1);
  const std::string index = session.form1.txtRefractReal.Text;
  for (const char* temperature : {"20", "40", "60"}) UserSlides(session, Slid::Temperature, temperature);
  EXPECT_EQ(session.undo.past.size(), past + 2);
  EXPECT_NE(session.form1.txtRefractReal.Text, index) << "the index follows the temperature";
  EXPECT_THAT(session.form1.lblSphere.Caption, testing::HasSubstr("60"));
  EXPECT_TRUE(Shown().empty());
  Do("click mnuUndo");
  EXPECT_EQ(session.form1.txtRefractReal.Text, index);
  Do("click mnuUndo");
  EXPECT_EQ(session.form1.txtRadius.Text, "10");
  // Only what the graph and the materials take.
  EXPECT_FALSE(CanSlide(session, Slid::Rays));
  Do("choose cboType Debye\nclick mnuRI_Fixed1");
  EXPECT_TRUE(CanSlide(session, Slid::Rays));
  EXPECT_FALSE(CanSlide(session, Slid::Temperature));
}

TEST(Film, PicturesAreNumbered) {
  EXPECT_EQ(FilmName("/tmp/a.b/bow.png", 12), "/tmp/a.b/bow_0012.png");
  EXPECT_EQ(FilmName("/tmp/a.b/bow", 1), "/tmp/a.b/bow_0001.png");
  EXPECT_EQ(FaultOfFilmName("/tmp/a.b/bow"), "");
  EXPECT_EQ(FaultOfFilmName("bow.PNG"), "");
  EXPECT_NE(FaultOfFilmName("bow.gif"), "");
}

}  // namespace
}  // namespace lumivex
