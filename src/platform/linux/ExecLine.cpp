#include "platform/linux/ExecLine.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kestrelfen {

namespace {

using Words = std::vector<std::string>;

/// Takes an Exec line apart, letter by letter.
class Splitter {
  public:
    explicit Splitter(std::string_view line) : line_(line) {}

    Words words() {
        while (at_ < line_.size()) {
            take(line_[at_++]);
        }
        endWord();
        return isQuoted_ ? Words() : words_;
    }

  private:
    void take(char letter) {
        if (letter == '"') {
            isQuoted_ = !isQuoted_;
            isWord_ = true;
        } else if (!isQuoted_ && (letter == ' ' || letter == '\t' || letter == '\n')) {
            endWord();
        } else if (letter == '%') {
            takeFieldCode();
        } else {
            add(letter == '\\' && at_ < line_.size() ? line_[at_++] : letter);
        }
    }

    void takeFieldCode() {
        if (at_ < line_.size() && line_[at_++] == '%') {
            add('%');
        }
    }

    void add(char letter) {
        word_ += letter;
        isWord_ = true;
    }

    void endWord() {
        if (isWord_) {
            words_.push_back(std::move(word_));
        }
        word_.clear();
        isWord_ = false;
    }

    std::string_view line_;
    std::size_t at_ = 0;
    Words words_;
    std::string word_;
    bool isWord_ = false;
    bool isQuoted_ = false;
};

/// What runs programs of others: that it runs says nothing of the product.
constexpr std::array<std::string_view, 22> runners{
    "bash", "dash", "dbus-launch", "dotnet", "electron", "flatpak", "gjs",  "gtk-launch",
    "java", "mono", "node",        "perl",   "pkexec",   "python",  "ruby", "sh",
    "snap", "sudo", "wine",        "wine64", "xdg-open", "zsh"};

bool isRunner(std::string_view name) {
    constexpr std::string_view versionLetters = "0123456789.";
    const std::string_view bare = name.substr(0, name.find_last_not_of(versionLetters) + 1);
    return std::find(runners.begin(), runners.end(), name) != runners.end() ||
           std::find(runners.begin(), runners.end(), bare) != runners.end();
}

std::string baseName(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

bool isOptionOrAssignment(const std::string& word) {
    return word.starts_with('-') || word.find('=') != std::string::npos;
}

Words::const_iterator afterEnvironment(const Words& words) {
    if (words.empty() || baseName(words.front()) != "env") {
        return words.begin();
    }
    return std::find_if_not(words.begin() + 1, words.end(), isOptionOrAssignment);
}

/// The first word after `run` and its options.
std::string snapName(Words::const_iterator word, Words::const_iterator end) {
    word = std::find(word, end, "run");
    word = word == end ? end : std::find_if_not(word + 1, end, isOptionOrAssignment);
    return word == end ? std::string() : word->substr(word->find('.') + 1);
}

std::string flatpakCommand(Words::const_iterator word, Words::const_iterator end) {
    constexpr std::string_view option = "--command=";
    word = std::find_if(word, end, [&](const std::string& each) { return each.starts_with(option); });
    return word == end ? std::string() : baseName(word->substr(option.size()));
}

} // namespace

Words execWords(std::string_view line) {
    return Splitter(line).words();
}

std::string executableName(const Words& words) {
    const auto word = afterEnvironment(words);
    std::string name = word == words.end() ? std::string() : baseName(*word);
    if (name == "flatpak") {
        name = flatpakCommand(word, words.end());
    } else if (name == "snap") {
        name = snapName(word, words.end());
    }
    return isRunner(name) ? std::string() : name;
}

} // namespace kestrelfen
