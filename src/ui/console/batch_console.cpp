#include "ui/console/batch_console.h"

#include <iostream>

#include "files/batch/batch_commands.h"
#include "files/batch/read_batch.h"
#include "scripts/script_runner.h"
#include "ui/console/interrupt.h"

namespace lumivex {

bool RunConsoleBatch(const ConsoleBatch& batch) {
  ScriptRunner runner(std::cout, std::cerr);
  runner.Start();
  ScriptedPlatform& world = runner.World();
  world.threads = batch.threads;
  WatchForInterrupt();
  world.onYield = [&runner] {
    if (WasInterrupted() && runner.Current().state.StopAnswer == 0) runner.Current().events.Raise("cmdStop_Click");
  };
  const bool list = IsBatchList(batch.file);
  const auto output = batch.output || list ? batch.output : BatchOutputBeside(batch.file);
  return RunBatch(runner.Current(), {batch.file, output, false}) == BatchEnd::Done;
}

}  // namespace lumivex
