#pragma once

namespace lumivex {

/// A rectangle of the surface (surface units, y downward): a plot box, or a label.
struct GraphBox {
  double left = 0, right = 0, top = 0, bottom = 0;

  double Width() const { return right - left; }
  double Height() const { return bottom - top; }
  bool Holds(double x, double y) const { return x >= left && x <= right && y >= top && y <= bottom; }
  bool operator==(const GraphBox&) const = default;
};

/// The ends of both axes, in the axes' units.
struct AxisLimits {
  double xmin = 0, xmax = 180;
  double ymin = 0, ymax = 1;
  bool operator==(const AxisLimits&) const = default;
};

/// Makes limits that can be drawn of any limits, so that no scale divides by zero: values that are not finite give way
/// to 0 and 1, reversed ends change places, equal ends move apart. On a logarithmic x axis a lower end that is not
/// positive becomes a thousandth of the upper one; on a logarithmic y axis it becomes 0.0001.
AxisLimits RepairedLimits(AxisLimits limits, bool logX, bool logY);

/// Joins a plot box to its axes: values to surface units and back. The limits have been repaired.
struct PanelMap {
  GraphBox box;
  AxisLimits limits;
  bool logX = false;
  bool logY = false;

  /// Surface x of a value; on a logarithmic axis not a number for values that are not positive.
  double X(double x) const;
  /// Surface y of a value; on a logarithmic axis not a number for values that are not positive.
  double Y(double y) const;
  /// The values that stand at a place of the surface.
  double XAt(double surfaceX) const;
  double YAt(double surfaceY) const;
};

/// An interval of the x axis.
struct XRange {
  double xmin = 0, xmax = 0;
  bool operator==(const XRange&) const = default;
};

/// The range after a zoom that leaves the value `centre` where it is on the screen: `factor` below 1 shows less. The
/// range keeps within `bounds` and at least a millionth of it. On a logarithmic axis the ratio of the ends is scaled.
XRange ZoomedRange(XRange range, double factor, double centre, XRange bounds, bool logarithmic);

/// The range moved by a part of its width, positive to greater values; its width stays, and so it stops at the bounds.
XRange PannedRange(XRange range, double part, XRange bounds, bool logarithmic);

}  // namespace lumivex
