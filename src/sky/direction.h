#pragma once

namespace lumivex {

/// A direction as a unit vector, of a camera (right, up, forward along its axis) or of the world (where up is the
/// zenith and forward the azimuth 0).
struct Direction {
  double right = 0, up = 0, forward = 1;
};

/// How a camera stands: the altitude of its axis, and its azimuth, which grows to the right (radians).
struct CameraPose {
  double altitude = 0, azimuth = 0;
};

double Dot(const Direction& a, const Direction& b);
Direction Cross(const Direction& a, const Direction& b);
/// The vector over its length; straight forward for none.
Direction Normalised(const Direction& a);
Direction Opposite(const Direction& a);
/// The angle between two directions, exact near 0 and 180 degrees too (radians).
double AngleBetween(const Direction& a, const Direction& b);

/// Height over the horizontal plane and angle in it, to the right of forward (radians).
double AltitudeOf(const Direction& a);
double AzimuthOf(const Direction& a);
Direction DirectionAt(double altitude, double azimuth);

/// A direction of the camera as one of the world, and back.
Direction InWorld(const Direction& seen, const CameraPose& pose);
Direction InCamera(const Direction& world, const CameraPose& pose);

/// The altitude of the axis of a camera that sees the direction at that altitude; of two, the one of smaller size. One
/// that comes nearest where no camera does.
double AxisAltitude(const Direction& seen, double altitude);

}  // namespace lumivex
