#include "ui/status_line.h"

#include <QPainter>
#include <QProgressBar>
#include <QStatusBar>
#include <QStyleOption>
#include <QToolButton>
#include <algorithm>

#include "pages/trust/trust_line.h"
#include "record/session.h"
#include "session/info.h"
#include "ui/look.h"

namespace lumivex {

namespace {

/// Signs as well as words: not everybody tells red from green.
QString SignOf(TrustMark::Standing standing) {
  switch (standing) {
    case TrustMark::Standing::Outside:
      return "\u2716 ";
    case TrustMark::Standing::Doubtful:
      return "\u26A0 ";
    case TrustMark::Standing::Good:
      return "\u2714 ";
    default:
      return {};
  }
}

void SetText(QLabel& label, const QString& text) {
  if (label.text() != text) label.setText(text);
}

}  // namespace

ShortenedLabel::ShortenedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ShortenedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QStyleOption option;
  option.initFrom(this);
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(Qt::AlignRight | Qt::AlignVCenter), option.palette,
                        isEnabled(), shown, foregroundRole());
}

StatusLine::StatusLine(QStatusBar& bar)
    : reading_(new QLabel(&bar)),
      status_(new QLabel(&bar)),
      spectrum_(new QToolButton(&bar)),
      trust_(new ShortenedLabel(&bar)),
      average_(new QLabel(&bar)),
      progress_(new QProgressBar(&bar)) {
  status_->setTextFormat(Qt::PlainText);
  status_->setContentsMargins(4, 0, 0, 0);
  // A long line is cut off; it makes no window wider.
  status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  reading_->setTextFormat(Qt::PlainText);
  reading_->setAccessibleName("Reading of the graph");
  reading_->setContentsMargins(4, 0, 12, 0);
  reading_->hide();
  spectrum_->setText(QString("The Sun in %1 wavelengths").arg(wavelengthsOfSun));
  spectrum_->setToolTip("Sunlight has all colours: takes so many in place of one");
  spectrum_->setAutoRaise(true);
  spectrum_->setFocusPolicy(Qt::TabFocus);
  spectrum_->hide();
  QObject::connect(spectrum_, &QToolButton::clicked, spectrum_, [this] {
    if (spectrumWanted) spectrumWanted();
  });
  trust_->setAccessibleName("Trust in the numbers");
  progress_->setAccessibleName("Progress of the calculation");
  progress_->setRange(0, 100);
  Measure();
  progress_->hide();
  bar.addWidget(reading_);
  bar.addWidget(status_, 1);
  bar.addWidget(spectrum_);
  bar.addWidget(trust_, 2);
  bar.addPermanentWidget(average_);
  bar.addPermanentWidget(progress_);
}

void StatusLine::Measure() {
  const QFontMetrics metrics = progress_->parentWidget()->fontMetrics();
  progress_->setFixedWidth(metrics.averageCharWidth() * 34);
  progress_->setMaximumHeight(metrics.height() + 2);
}

void StatusLine::ShowReading(const QString& text) {
  SetText(*reading_, text);
  reading_->setVisible(!text.isEmpty());
}

void StatusLine::Show(const Session& session, const QString& offer, const QString& live) {
  const auto& form = session.form1;
  QStringList parts = {live, ToQString(StatusText(session)), offer};
  parts.removeAll(QString());
  SetText(*status_, parts.join("      "));
  SetText(*average_, form.mnuAverage.Checked ? ToQString(form.lblAverage.Caption) : QString());
  const bool busy = form.txtProgress.Visible;
  const int percent = std::clamp(static_cast<int>(session.state.ProgressPercent), 0, 100);
  if (progress_->value() != percent) progress_->setValue(percent);
  if (progress_->isHidden() == busy) progress_->setVisible(busy);
  trust_->setVisible(!busy);
  const bool oneColour = form.optSun.Visible && form.optSun.Checked && form.cboWave.Visible && form.cboWave.Enabled &&
                         form.cboWave.Text == "1";
  spectrum_->setVisible(oneColour && !busy);
  ShowTrust(session);
}

void StatusLine::ShowTrust(const Session& session) {
  const auto& results = session.state.LastResults;
  if (results.get() == judged_) return;
  judged_ = results.get();
  QString line, why;
  for (const TrustMark& mark : results ? TrustOf(*results) : std::vector<TrustMark>()) {
    line += (line.isEmpty() ? "" : "  \u00B7  ") + SignOf(mark.standing) + ToQString(mark.text);
    why += "<p><b>" + SignOf(mark.standing) + ToQString(mark.text).toHtmlEscaped() + "</b><br>" +
           ToQString(mark.why).toHtmlEscaped() + "</p>";
  }
  trust_->setText(line);
  trust_->setToolTip(why);
  trust_->setAccessibleDescription(line);
}

}  // namespace lumivex
