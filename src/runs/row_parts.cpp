/// Rows of one sphere divided among threads.

#include <algorithm>
#include <vector>

#include "runs/further_methods.h"

namespace lumivex {

bool SumRowsInParts(RowWindow rows, int rowsPerPart, TaskPool& pool,
                    const std::function<int(RowWindow part, RunMonitor& monitor)>& sum,
                    const std::function<void(int last)>& taken) {
  std::vector<RowWindow> parts;
  for (int low = rows.low; low <= rows.high; low += rowsPerPart)
    parts.push_back({low, std::min(low + rowsPerPart - 1, rows.high)});
  TaskList tasks;
  tasks.count = parts.size();
  tasks.work = [&](std::size_t task, std::size_t, RunMonitor& monitor) {
    return parts[task].low + sum(parts[task], monitor) > parts[task].high;
  };
  tasks.take = [&](std::size_t task, std::size_t) {
    taken(parts[task].high);
    return true;
  };
  return pool.Do(tasks) == tasks.count;
}

bool DoOnce(TaskPool& pool, const std::function<bool(RunMonitor& monitor)>& work, double shareOfRun) {
  TaskList one;
  one.count = 1;
  one.shareOfRun = shareOfRun;
  one.work = [&](std::size_t, std::size_t, RunMonitor& monitor) { return work(monitor); };
  one.take = [](std::size_t, std::size_t) { return true; };
  return pool.Do(one) == 1;
}

}  // namespace lumivex
