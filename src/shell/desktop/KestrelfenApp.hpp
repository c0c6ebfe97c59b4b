#pragma once

#include <memory>

namespace kestrelfen {

/// The desktop program: the only place that chooses a platform. Main thread only.
class KestrelfenApp {
  public:
    KestrelfenApp(int& argumentCount, char** arguments);
    ~KestrelfenApp();

    /// Runs the program and answers its exit status.
    int run();

  private:
    class Parts;

    int& argumentCount_;
    char** arguments_;
    std::unique_ptr<Parts> parts_;
};

} // namespace kestrelfen
