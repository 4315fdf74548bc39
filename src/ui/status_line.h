#pragma once

#include <QLabel>
#include <QString>
#include <functional>

class QProgressBar;
class QStatusBar;
class QToolButton;

namespace lumivex {

struct Session;

/// Wavelengths that make a smooth bow.
inline constexpr int wavelengthsOfSun = 30;

/// A line of text that ends in dots where it has no room, and makes no window wider.
class ShortenedLabel final : public QLabel {
 public:
  explicit ShortenedLabel(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// The line below the graph: what stands under the pointer, how the last run went or how far this one is, how far its
/// numbers can be trusted, and what is averaged.
class StatusLine {
 public:
  explicit StatusLine(QStatusBar& bar);

  /// Pressed where the Sun shines in one wavelength: its light has many.
  std::function<void()> spectrumWanted;

  /// What is read off the graph; empty where the pointer is elsewhere.
  void ShowReading(const QString& text);
  /// @param offer  what a key would do now; empty where it does nothing.
  /// @param live   how the graph stands to the inputs, which comes first; empty where it shows them.
  void Show(const Session& session, const QString& offer, const QString& live);
  /// Takes up the font of the desktop.
  void Measure();

 private:
  void ShowTrust(const Session& session);

  QLabel* reading_;
  QLabel* status_;
  QToolButton* spectrum_;
  ShortenedLabel* trust_;
  QLabel* average_;
  QProgressBar* progress_;
  const void* judged_ = nullptr;  ///< results that the trust shown is of
};

}  // namespace lumivex
