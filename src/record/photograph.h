#pragma once

#include <memory>
#include <string>

#include "sky/bitmap.h"
#include "sky/light_table.h"

namespace lumivex {

/// A picture file that was opened.
struct OpenedPhotograph {
  Bitmap picture;       ///< upright; empty where it could not be read
  double focal35 = 0;   ///< focal length of the lens, as of a camera with film of 36 x 24 mm (mm); 0 where not told
  std::string notes;    ///< what the camera wrote into the file, to be written into the next one as it stands
  std::string failure;  ///< in one sentence, why it could not be read; otherwise empty
  std::string remark;   ///< what is wrong with a picture that could be read all the same; otherwise empty
};

/// The pictures of the simulation window, and the light that it paints.
struct SimulationPictures {
  SharedBitmap photograph;                   ///< before any painting; null until the window is shown
  SharedBitmap picture;                      ///< painted
  std::string notes;                         ///< of the photograph's camera
  std::string name;                          ///< of its file, without folder; empty for the default landscape
  std::shared_ptr<const LightTable> stored;  ///< colours of the bars that Simulation was pressed for; null before
  std::shared_ptr<const LightTable> light;   ///< of these or of a Lee diagram: what was painted or is previewed
  std::string lightWords;                    ///< of a Lee diagram, the column that it is
};

}  // namespace lumivex
