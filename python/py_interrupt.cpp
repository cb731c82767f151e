#include "python/py_interrupt.h"

#include <chrono>
#include <future>

namespace {

// Ctrl-C is acted on within this; the caller wakes 20 times a second.
constexpr auto kSlice = std::chrono::milliseconds(50);

}  // namespace

BatchResult RunBatchInterruptibly(const RunOptions& options, const Script& script, RunControl& control) {
  std::future<BatchResult> batch =
      std::async(std::launch::async, [&] { return RunBatch(options, script, control); });
  for (;;) {
    {
      py::gil_scoped_release released;
      if (batch.wait_for(kSlice) == std::future_status::ready) break;
    }
    if (PyErr_CheckSignals() != 0) {
      py::error_already_set raised;  // taken while the GIL is held
      control.Stop = true;
      {
        py::gil_scoped_release released;
        batch.wait();  // the games end at their next roll
      }
      throw raised;
    }
  }
  return batch.get();  // a set-up failure is thrown again here
}
