#include "files/examples/example_events.h"

#include "files/examples/gallery.h"

namespace lumivex {

namespace {

constexpr ExampleEvent rows[] = {
    {"mnuExample1_Click", mnuExample_Click<0>},   {"mnuExample2_Click", mnuExample_Click<1>},
    {"mnuExample3_Click", mnuExample_Click<2>},   {"mnuExample4_Click", mnuExample_Click<3>},
    {"mnuExample5_Click", mnuExample_Click<4>},   {"mnuExample6_Click", mnuExample_Click<5>},
    {"mnuExample7_Click", mnuExample_Click<6>},   {"mnuExample8_Click", mnuExample_Click<7>},
    {"mnuExample9_Click", mnuExample_Click<8>},   {"mnuExample10_Click", mnuExample_Click<9>},
    {"mnuExample11_Click", mnuExample_Click<10>}, {"mnuExample12_Click", mnuExample_Click<11>},
    {"mnuExample13_Click", mnuExample_Click<12>}, {"mnuExample14_Click", mnuExample_Click<13>},
    {"mnuExample15_Click", mnuExample_Click<14>}, {"mnuExample16_Click", mnuExample_Click<15>},
    {"mnuExample17_Click", mnuExample_Click<16>}, {"mnuExample18_Click", mnuExample_Click<17>},
    {"mnuExample19_Click", mnuExample_Click<18>}, {"mnuExample20_Click", mnuExample_Click<19>},
};
static_assert(std::size(rows) == exampleEntryNames.size());

}  // namespace

std::span<const ExampleEvent> ExampleEvents() {
  return rows;
}

}  // namespace lumivex
