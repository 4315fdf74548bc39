#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <cmath>

#include "session/user_actions.h"
#include "ui/look.h"
#include "ui/night_colours.h"
#include "window_fixture.h"

namespace lumivex {
namespace {

/// Contrast of two colours after the web's accessibility rules; text reads well from 4.5 up.
double Contrast(const QColor& a, const QColor& b) {
  const auto luminance = [](const QColor& colour) {
    const auto part = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
  };
  const double one = luminance(a), other = luminance(b);
  return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

QPalette DarkPalette() {
  QPalette palette{QColor(60, 60, 64), QColor(45, 45, 48)};
  palette.setColor(QPalette::Base, QColor(30, 30, 30));
  return palette;
}

/// Empty, or what of the widget's text does not fit into it.
std::string Clipped(const QWidget& widget) {
  const auto metrics = widget.fontMetrics();
  QString text;
  int room = widget.width();
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    const bool fits = label->heightForWidth(label->width()) <= label->height() + 1;
    return fits ? "" : label->text().toStdString();
  }
  if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
    text = box->isEditable() ? box->lineEdit()->text() : box->currentText();
    room = box->isEditable() ? box->lineEdit()->width() - 2 : room - metrics.height() - 6;
  } else if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
    text = edit->text();
    room -= 6;
  } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    text = button->text();
    room -= button->isCheckable() ? 20 : 6;
  }
  return metrics.horizontalAdvance(text) <= room ? "" : text.toStdString();
}

using PanelTest = WindowTest;

TEST_F(PanelTest, TypingARadiusAndEnterGivesANewCurve) {
  const double before = Now().state.Qext;
  const std::size_t rows = Now().state.Iperp.size();
  ASSERT_GT(rows, 1800U) << "the program opens on a finished graph";
  const double forward = Now().state.Iperp[1];
  Type(Form().txtRadius, "12.5");
  EXPECT_EQ(Form().txtRadius.Text, "12.5");
  EXPECT_EQ(Now().state.Radius, 10) << "typing alone calculates nothing";
  Press(Form().txtRadius, Qt::Key_Return);
  EXPECT_EQ(Now().state.Radius, 12.5);
  EXPECT_NE(Now().state.Qext, before);
  EXPECT_NE(Now().state.Iperp[1], forward);
  EXPECT_TRUE(messages.empty()) << messages.front();
}

TEST_F(PanelTest, MarksShowOnTheFieldAndReadInEveryPalette) {
  struct Case {
    const char* name;
    QPalette plain;
  };
  const Case cases[] = {{"light", QPalette(QColor(240, 240, 240))}, {"dark", DarkPalette()}};
  for (const auto& [name, plain] : cases) {
    for (const Colour mark : {colours::BadInput, colours::Warning}) {
      const QPalette marked = MarkedPalette(plain, mark);
      const QColor ground = marked.color(QPalette::Base);
      EXPECT_GE(Contrast(ground, marked.color(QPalette::Text)), 4.5) << name << " " << mark.value;
      EXPECT_NE(ground, plain.color(QPalette::Base)) << name << " " << mark.value;
      const bool red = mark == colours::BadInput;
      EXPECT_GT(ground.red(), ground.blue() + 50) << name;
      EXPECT_EQ(ground.green() > ground.blue() + 50, !red) << name << ": yellow is red and green";
    }
  }
  const QColor plain = WidgetOf(Form().txtRadius)->palette().color(QPalette::Base);
  Type(Form().txtRadius, "-1");
  Press(Form().txtRadius, Qt::Key_Return);
  EXPECT_EQ(Form().txtRadius.BackColour, colours::BadInput);
  EXPECT_NE(WidgetOf(Form().txtRadius)->palette().color(QPalette::Base), plain);
  EXPECT_TRUE(WidgetOf(Form().txtRadius)->accessibleDescription().contains("not accepted"));
  Type(Form().txtRadius, "10");
  EXPECT_EQ(WidgetOf(Form().txtRadius)->palette().color(QPalette::Base), plain);
}

TEST_F(PanelTest, TheMarkIsOnTheScreenWhileItsMessageIsRead) {
  bool marked = false;
  whileMessage = [&] { marked = WidgetOf(Form().txtRadius)->accessibleDescription().contains("not accepted"); };
  Type(Form().txtRadius, "x");
  Press(Form().txtRadius, Qt::Key_Return);
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_TRUE(marked);
}

TEST_F(PanelTest, OptionsListsAndWidgetsFollowTheRecordBothWays) {
  Click(Form().optLinear);
  EXPECT_TRUE(Form().optLinear.Checked);
  EXPECT_FALSE(WidgetOf<QRadioButton>(Form().OptLog)->isChecked());
  Click(Form().optLinear);
  EXPECT_TRUE(WidgetOf<QRadioButton>(Form().optLinear)->isChecked()) << "a second click keeps an option on";

  auto* list = WidgetOf<QComboBox>(Form().cboPol);
  list->setFocus();
  const std::string first = Form().cboPol.Text;
  QTest::keyClick(list, Qt::Key_Up);
  EXPECT_NE(Form().cboPol.Text, first);
  EXPECT_EQ(Form().cboPol.Text, list->currentText().toStdString());

  program.Gate().Do([this] {
    Form().txtXmax.Text = "90";
    Form().cboPol.Text = "Unpolarised";
    Form().Label3.Caption = "Lowest & first";
    Form().optLinear.Visible = false;
    Form().cboStep.Enabled = false;
  });
  EXPECT_EQ(WidgetOf<QLineEdit>(Form().txtXmax)->text(), "90");
  EXPECT_EQ(list->currentText(), "Unpolarised");
  EXPECT_EQ(WidgetOf<QLabel>(Form().Label3)->text(), "Lowest & first");
  EXPECT_TRUE(WidgetOf(Form().optLinear)->isHidden());
  EXPECT_FALSE(WidgetOf(Form().cboStep)->isEnabled());
}

TEST_F(PanelTest, EveryInputIsInThePanelWithANameAndATip) {
  for (const Control* control : Form().Controls()) {
    const auto kind = control->Kind();
    if (kind != ControlKind::TextInput && kind != ControlKind::SelectionList) continue;
    if (control == &Form().txtProgress) continue;  // the bar in the status line
    const std::string name(control->Name());
    QWidget* widget = WidgetOf(*control);
    ASSERT_NE(widget, nullptr) << name;
    EXPECT_FALSE(widget->toolTip().isEmpty()) << name;
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << name;
  }
}

TEST_F(PanelTest, NothingIsClippedWithEverythingShownAndLargeFonts) {
  const QFont normal = QApplication::font();
  for (const double points : {9.0, 14.0}) {
    QFont font = normal;
    font.setPointSizeF(points);
    QApplication::setFont(font);
    QTest::qWait(50);
    for (Control* control : Form().Controls())
      if (control->Kind() != ControlKind::Picture) control->Visible = true;
    Form().Label32.Caption = "Refractive index (real)";
    Form().lblSphere.Caption = "Sphere: Refractive index set by user";
    program.Window().Refresh();
    QTest::qWait(50);

    const double unit = program.Window().Drawing().Unit();
    for (const Control* control : Form().Controls()) {
      QWidget* widget = WidgetOf(*control);
      if (!widget || control == &Form().lblWatts || control == &Form().lblDistance) continue;
      const std::string name(control->Name());
      ASSERT_TRUE(widget->isVisible()) << name;
      EXPECT_EQ(Clipped(*widget), "") << name << " at " << points << " points";
      const QPoint corner = widget->mapTo(&program.Window().Drawing(), widget->rect().bottomRight());
      EXPECT_LE(corner.x(), 12000 * unit) << name << " at " << points << " points";
      EXPECT_LE(corner.y(), 2800 * unit) << name << " at " << points << " points";
    }
    // The title of the start is the longest; no graph shows it together with the further axis.
    Form().Frame9.Visible = false;
    Form().Frame2.Caption = "Forward scattering = 0\u00B0, back-scattering = 180\u00B0";
    program.Window().Refresh();
    QTest::qWait(50);
    for (const auto* label : program.Window().Drawing().findChildren<QLabel*>()) {
      if (!label->isVisible()) continue;
      EXPECT_EQ(Clipped(*label), "") << "at " << points << " points";
    }
  }
  QApplication::setFont(normal);
}

TEST_F(PanelTest, TipsAndNamesFollowWhatAnInputMeans) {
  const auto* size = WidgetOf(Form().txtRadius);
  const auto* low = WidgetOf(Form().txtXmin);
  EXPECT_EQ(size->toolTip(), "Radius of the sphere in micrometres");
  program.Window().ActionOf(Form().mnuDiameter)->trigger();
  EXPECT_EQ(size->toolTip(), "Diameter of the sphere in micrometres");
  EXPECT_EQ(size->accessibleName(), "Diameter (\u00B5m)");
  EXPECT_TRUE(low->toolTip().contains("angle"));
  program.Gate().Do([this] { UserChooses(Now(), Form().cboGraph, "Qext/Qsca/Qabs v. wavelength"); });
  EXPECT_TRUE(low->toolTip().contains("wavelength")) << low->toolTip().toStdString();
  EXPECT_EQ(low->accessibleName(), "Minimum (nm)");
  program.Window().ActionOf(Form().mnuUndo)->trigger();
  EXPECT_TRUE(low->toolTip().contains("angle")) << "with the graph they come back";
}

TEST_F(PanelTest, NarrowWindowsShowTheCommandsAndWideEnoughOnesTheReadings) {
  struct Case {
    int width, height;
    bool readings;
  };
  // 837 by 493 is what a frame leaves of 1280 by 800 at one and a half times the density.
  for (const auto& [width, height, readings] :
       {Case{1350, 728, true}, Case{1008, 728, true}, Case{837, 493, true}, Case{800, 600, false}}) {
    program.Window().resize(width, height);
    program.Window().Settle();
    QTest::qWait(60);
    const auto& canvas = program.Window().Drawing();
    const std::string size = std::to_string(width) + " x " + std::to_string(height);
    EXPECT_EQ(canvas.width(), width) << size << " is scrolled";
    for (const Control* control : Form().Controls()) {
      const QWidget* widget = WidgetOf(*control);
      if (!widget || !widget->isVisible()) continue;
      EXPECT_LE(widget->mapTo(&program.Window(), widget->rect().topRight()).x(), width) << size;
      EXPECT_EQ(Clipped(*widget), "") << control->Name() << " at " << size;
    }
    EXPECT_GE(width, (readings ? 13700 : 12000) * canvas.Unit()) << size;
  }
}

TEST_F(PanelTest, AThemeReachesThePageAndOpenDialogsUnlessABackgroundIsChosen) {
  const QPalette before = QApplication::palette();
  Now().platform.Show(Now().forms.dlogAverage);
  auto* field = program.Window().findChild<QLineEdit*>("txtAverage");
  ASSERT_NE(field, nullptr);
  const auto corner = [this] { return program.Window().Drawing().Surface().PaperColour().lightness(); };
  QApplication::setPalette(DarkPalette());
  QTest::qWait(50);
  EXPECT_LT(corner(), 100);
  field = program.Window().findChild<QLineEdit*>("txtAverage");
  EXPECT_EQ(field->palette().color(QPalette::Base), QColor(30, 30, 30));
  EXPECT_EQ(WidgetOf(Form().txtRadius)->palette().color(QPalette::Base), QColor(30, 30, 30));
  program.Window().ActionOf(Form().mnuGrey)->trigger();
  EXPECT_GT(corner(), 200) << "a page that the user chose";
  program.Window().ActionOf(Form().mnuDefault)->trigger();
  EXPECT_LT(corner(), 100);
  QApplication::setPalette(before);
  QTest::qWait(50);
  EXPECT_GT(corner(), 200);
}

TEST_F(PanelTest, WhatIsDrawnOnADarkPageReads) {
  const QColor ground = NightFill({0xE0FFFF});
  for (const Colour ink : {colours::Black, RGB(96, 96, 96), RGB(128, 0, 0), RGB(0, 0, 255), RGB(0, 0, 128)})
    EXPECT_GE(Contrast(NightInk(ink), ground), 3.9) << ink.value;
  EXPECT_EQ(NightInk(RGB(255, 0, 0)), QColor(255, 0, 0)) << "what reads already keeps its colour";
  for (const Colour full : {RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255), RGB(255, 0, 255), RGB(0, 128, 255)}) {
    const QColor first = NightInk(full), second = NightInk(RGB(full.Red() / 2, full.Green() / 2, full.Blue() / 2));
    EXPECT_GT(std::abs(first.lightnessF() - second.lightnessF()), 0.09) << full.value << ": two curves of one colour";
  }
  EXPECT_EQ(NightFill(colours::Black), QColor(Qt::black)) << "the ground of a spectrum";
}

TEST_F(PanelTest, ThePanelKeepsItsPlaceWhenAGraphHidesInputs) {
  const double unit = program.Window().Drawing().Unit();
  const QPoint before = WidgetOf(Form().txtXmin)->mapTo(&program.Window(), QPoint());
  program.Gate().Do([this] {
    for (Control* control : Form().Controls())
      if (control != &Form().txtXmin && control != &Form().Label3 && control != &Form().Frame2)
        control->Visible = false;
  });
  QTest::qWait(30);
  const QPoint after = WidgetOf(Form().txtXmin)->mapTo(&program.Window(), QPoint());
  EXPECT_EQ(after.x(), before.x());
  EXPECT_EQ(program.Window().Drawing().Unit(), unit);
}

}  // namespace
}  // namespace lumivex
