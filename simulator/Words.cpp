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

bool continuesACharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xc0U) == 0x80U;
}

[[noreturn]] void refuseEscape(std::string_view rest) {
    std::size_t length = 1;
    while (length < rest.size() && continuesACharacter(rest[length])) {
        ++length;
    }
    throw ScenarioError("unknown escape \\" + std::string(rest.substr(0, length)));
}

char takeEscaped(std::string_view& rest) {
    const std::string_view escape = rest;
    const char character = takeFront(rest);
    switch (character) {
    case '"':
    case '\\':
        return character;
    case 'n':
        return '\n';
    default:
        refuseEscape(escape);
    }
}

std::string takeQuoted(std::string_view& rest) {
    std::string word;
    takeFront(rest);
    for (char character = takeFront(rest); character != '"'; character = takeFront(rest)) {
        word += character == '\\' ? takeEscaped(rest) : character;
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
