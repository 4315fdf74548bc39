#include "record/session.h"

namespace lumivex {

// The whole record is made and taken down here and nowhere else.
Session::Session(Platform& outsideWorld, DrawingSurface& graphSurface, Events& eventTable)
    : platform(outsideWorld),
      windows{Window{&forms.form1, &graphSurface}, Window{&forms.dlogInhomSphere}, Window{&forms.dlogNonSpherical},
              Window{&forms.dlogImpulse}},
      events(eventTable) {}

Session::~Session() = default;

}  // namespace lumivex
