#pragma once

#include <QElapsedTimer>
#include <QFrame>
#include <QTimer>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "record/session.h"
#include "session/live/live_graph.h"
#include "session/live/slides.h"
#include "ui/command_gate.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QSlider;
class QSpinBox;

namespace lumivex {

/// A slider in the strip between panel and graph: it sweeps an input by hand, as a film on the screen, or as a series
/// of pictures in files. Each place counts as typed; the live graph shows what comes of it.
class SliderView final : public QFrame {
 public:
  /// @param graph  null where graphs do not follow: then there are no films.
  /// @param act    runs a command of the session through the gate.
  SliderView(Session& session, LiveGraph* graph, std::function<void(const CommandGate::Action&)> act, QWidget* parent);

  /// Comes to the front for a quantity; the one that it has keeps its range.
  void Open(Slid what);
  /// Shows itself as the inputs are now.
  void Sync();
  /// Takes its place in a parent so many pixels wide, down to a height.
  void StandAbove(int bottom, int room);

  /// Writes a picture of what is on the screen; a sentence on what went wrong, or nothing.
  std::function<std::string(const std::string& path)> savePicture;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// A film that is being saved.
  struct Film {
    std::string path, before;  ///< where to; what the input held
    int next = 0;              ///< picture, from 0
    bool awaited = false;      ///< the input holds its number
  };

  void Build();
  void Choose(Slid what);
  void TakeEnds();
  /// @return whether the input holds that place now: not while another command is under way.
  bool Slide(double place);
  void Play();
  void GoOn();
  void AskForFilm();
  void SaveOn();
  void EndFilm(const std::string& trouble);
  /// Ends whatever moves; pictures that are written stay.
  void Stop();

  Session& session_;
  LiveGraph* graph_;
  std::function<void(const CommandGate::Action&)> act_;
  Slid what_ = Slid::Radius;
  SlideRange range_;
  std::optional<Film> film_;
  QTimer moving_;        ///< runs while a film does
  QElapsedTimer since_;  ///< the film on the screen began
  double startPlace_ = 0;
  std::vector<std::pair<QString, int>> offered_;  ///< names and numbers in the list
  QComboBox* list_ = nullptr;
  QLineEdit* low_ = nullptr;
  QLineEdit* high_ = nullptr;
  QSlider* slider_ = nullptr;
  QCheckBox* logarithmic_ = nullptr;
  QPushButton* play_ = nullptr;
  QPushButton* save_ = nullptr;
  QSpinBox* pictures_ = nullptr;
};

}  // namespace lumivex
