#pragma once

#include <atomic>
#include <fstream>
#include <string>
#include <thread>

#include "Tests/Support/TestSupport.h"

namespace tarnsim {

/// Somebody else who goes on writing to a file while the object lives.
class BusyWriter {
public:
    explicit BusyWriter(const std::string& path)
        : thread_([this, path] {
              // The size goes up and down, so that it never grows beyond bounds.
              for (int i = 0; !isOver_; ++i)
                  std::ofstream(path) << std::string(1 + static_cast<std::size_t>(i % 2), 'x');
          }) {}
    ~BusyWriter() {
        isOver_ = true;
        thread_.join();
    }
    BusyWriter(const BusyWriter&) = delete;
    BusyWriter& operator=(const BusyWriter&) = delete;

private:
    std::atomic<bool> isOver_ = false;
    std::thread thread_;
};

/// The first message that `action` raises, if it does so within that many tries; "(no Error)" otherwise.
template <class Action>
std::string errorOfTries(int tries, Action action) {
    for (int i = 0; i < tries; ++i) {
        const std::string message = errorOf(action);
        if (message != "(no Error)") return message;
    }
    return "(no Error)";
}

}  // namespace tarnsim
