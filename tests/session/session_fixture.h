#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#include "record/number_text.h"
#include "scripts/script_runner.h"

namespace lumivex {

/// A loaded session that a test drives as a user does, by script lines, and then looks at.
class ScriptedSession : public ::testing::Test {
 protected:
  ScriptedSession() : runner(output, errors) { runner.Start(); }

  /// Runs script lines; they must be good.
  void Do(const std::string& lines) {
    std::istringstream script(lines);
    EXPECT_EQ(runner.Run(script), ScriptRunner::ok) << lines << "\n" << errors.str();
  }

  /// The value that `get` prints.
  std::string Get(const std::string& name) {
    output.str("");
    Do("get " + name);
    const std::string text = output.str();
    const auto equals = text.find(" = ");
    return equals == std::string::npos ? "" : text.substr(equals + 3, text.size() - equals - 4);
  }
  double Number(const std::string& name) { return Val(Get(name)); }

  const std::vector<ShownMessage>& Shown() { return runner.World().messages; }
  std::string LastText() { return Shown().empty() ? "" : Shown().back().text; }
  std::string LastTitle() { return Shown().empty() ? "" : Shown().back().title; }

  std::ostringstream output, errors;
  ScriptRunner runner;
};

}  // namespace lumivex
