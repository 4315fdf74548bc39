#include "files/settings/settings_events.h"

#include "files/settings/continue_session.h"
#include "files/settings/keep_session.h"
#include "files/settings/recent_files.h"
#include "files/settings/save_ini.h"

namespace lumivex {

namespace {

constexpr SettingsEvent rows[] = {
    {"Settings_Changed", Save_ini},
    {"Run_Ended", Run_Ended},
    {"mnuContinueSession_Click", mnuContinueSession_Click},
    {"mnuRecent1_Click", mnuRecent_Click<0>},
    {"mnuRecent2_Click", mnuRecent_Click<1>},
    {"mnuRecent3_Click", mnuRecent_Click<2>},
    {"mnuRecent4_Click", mnuRecent_Click<3>},
    {"mnuRecent5_Click", mnuRecent_Click<4>},
    {"mnuRecent6_Click", mnuRecent_Click<5>},
    {"mnuRecent7_Click", mnuRecent_Click<6>},
    {"mnuRecent8_Click", mnuRecent_Click<7>},
    {"mnuRecent9_Click", mnuRecent_Click<8>},
    {"mnuClearRecent_Click", mnuClearRecent_Click},
};

}  // namespace

std::span<const SettingsEvent> SettingsEvents() {
  return rows;
}

}  // namespace lumivex
