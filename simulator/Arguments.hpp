#pragma once

#include <string>
#include <vector>

namespace kestrelfen {

/// The words of one command, taken one after another. What is missing or too much throws a ScenarioError.
class Arguments {
  public:
    explicit Arguments(std::vector<std::string> words) : words_(std::move(words)) {}

    /// The next word; `what` names it in the error.
    const std::string& take(const char* what);

    bool empty() const { return next_ == words_.size(); }
    std::size_t left() const { return words_.size() - next_; }

    /// The words that are left.
    std::vector<std::string> takeRest();

    /// Takes the last two words off the end.
    void takeLastTwo(std::string& key, std::string& value);

    /// No word may be left.
    void end() const;

  private:
    std::vector<std::string> words_;
    std::size_t next_ = 0;
};

} // namespace kestrelfen
