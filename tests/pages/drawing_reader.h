#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "axes/panel_map.h"
#include "record/recording_surface.h"

namespace lumivex {

/// A drawing as a person reads it: which texts stand where, where the ticks are, which curves run through the box.
class DrawingReader {
 public:
  using Kind = DrawnOperation::Kind;

  explicit DrawingReader(const RecordingSurface& surface) : operations_(surface.Operations()) {}

  std::vector<DrawnOperation> All(Kind kind) const {
    std::vector<DrawnOperation> found;
    for (const auto& op : operations_)
      if (op.kind == kind) found.push_back(op);
    return found;
  }

  /// Texts in a region, from left to right.
  std::vector<std::string> TextsIn(GraphBox region) const {
    std::vector<const DrawnOperation*> found;
    for (const auto& op : operations_)
      if (op.kind == Kind::Text && !op.text.empty() && region.Holds(op.points[0].x, op.points[0].y))
        found.push_back(&op);
    std::ranges::stable_sort(found, {}, [](const DrawnOperation* op) { return op->points[0].x; });
    std::vector<std::string> texts;
    for (const auto* op : found) texts.push_back(op->text);
    return texts;
  }
  const DrawnOperation* Text(std::string_view text) const {
    for (const auto& op : operations_)
      if (op.kind == Kind::Text && op.text == text) return &op;
    return nullptr;
  }

  /// x of the ticks that hang from the lower edge of a box by a length.
  std::vector<double> TicksBelow(GraphBox box, double length) const {
    std::vector<double> places;
    for (const auto& op : operations_) {
      if (op.kind != Kind::Line || op.points[0].x != op.points[1].x) continue;
      if (std::abs(op.points[0].y - box.bottom) < 1 && std::abs(op.points[1].y - box.bottom - length) < 1)
        places.push_back(op.points[0].x);
    }
    std::ranges::sort(places);
    places.erase(std::ranges::unique(places, [](double a, double b) { return std::abs(a - b) < 1e-6; }).begin(),
                 places.end());
    return places;
  }

  /// The curves, in the order drawn.
  std::vector<DrawnOperation> Curves() const { return All(Kind::Polyline); }

  /// Pairs of texts that touch each other.
  std::vector<std::string> Overlaps() const {
    std::vector<std::string> found;
    const auto texts = All(Kind::Text);
    for (std::size_t i = 0; i < texts.size(); ++i)
      for (std::size_t j = i + 1; j < texts.size(); ++j) {
        const auto &a = texts[i], &b = texts[j];
        // A superscript stands in the line of its number: what is printed is a little lower than its line.
        const double air = 0.1 * std::min(a.height, b.height);
        const bool apart =
            a.points[0].x + a.width <= b.points[0].x + 1 || b.points[0].x + b.width <= a.points[0].x + 1 ||
            a.points[0].y + a.height - air <= b.points[0].y || b.points[0].y + b.height - air <= a.points[0].y;
        if (!apart) found.push_back("\"" + a.text + "\" and \"" + b.text + "\"");
      }
    return found;
  }

  /// Texts that leave the surface.
  std::vector<std::string> Outside(double width, double height) const {
    std::vector<std::string> found;
    for (const auto& op : All(Kind::Text))
      if (op.points[0].x < 0 || op.points[0].y < 0 || op.points[0].x + op.width > width ||
          op.points[0].y + op.height > height)
        found.push_back(op.text);
    return found;
  }

 private:
  const std::vector<DrawnOperation>& operations_;
};

}  // namespace lumivex
