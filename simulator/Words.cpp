#include "Words.hpp"

#include "ScenarioError.hpp"

namespace kestrelfen {

namespace {

bool isBlank(char character) {
    return character == ' ' || character == '\t';
}

void skipBlanks(std::string_view& rest) {
    while (!rest.empty() && isBlank(rest.front())) {
        rest.remove_prefix(1);
    }
}

char takeFront(std::string_view& rest) {
    if (rest.empty()) {
        throw ScenarioError("a quote is not closed");
    }
    const char character = rest.front();
    rest.remove_prefix(1);
    return character;
}

char escaped(char character) {
    switch (character) {
    case '"':
    case '\\':
        return character;
    case 'n':
        return '\n';
    default:
        throw ScenarioError(std::string("unknown escape \\") + character);
    }
}

std::string takeQuoted(std::string_view& rest) {
    std::string word;
    takeFront(rest);
    for (char character = takeFront(rest); character != '"'; character = takeFront(rest)) {
        word += character == '\\' ? escaped(takeFront(rest)) : character;
    }
    if (!rest.empty() && !isBlank(rest.front())) {
        throw ScenarioError("a word is glued to a closing quote");
    }
    return word;
}

std::string takePlain(std::string_view& rest) {
    std::string word;
    while (!rest.empty() && !isBlank(rest.front())) {
        if (rest.front() == '"') {
            throw ScenarioError("a quote inside a word");
        }
        word += takeFront(rest);
    }
    return word;
}

} // namespace

std::vector<std::string> splitWords(std::string_view line) {
    std::vector<std::string> words;
    skipBlanks(line);
    if (!line.empty() && line.front() == '#') {
        return words;
    }
    while (!line.empty()) {
        words.push_back(line.front() == '"' ? takeQuoted(line) : takePlain(line));
        skipBlanks(line);
    }
    return words;
}

} // namespace kestrelfen
