#include "ui/SettingsWindowView/PaneContent.hpp"

namespace kestrelfen {

namespace {

void addNotes(std::vector<std::string>& notes, const PaneBlock& block) {
    switch (block.kind) {
    case PaneBlock::Kind::rows:
    case PaneBlock::Kind::cards:
    case PaneBlock::Kind::modeCards:
    case PaneBlock::Kind::buttons:
        return;
    case PaneBlock::Kind::callout:
    case PaneBlock::Kind::disclosure:
        notes.push_back(block.title + ": " + block.text);
        return;
    case PaneBlock::Kind::previews:
        for (const NotificationPreview& preview : block.previews) {
            notes.push_back(preview.body);
        }
        return;
    case PaneBlock::Kind::status:
    case PaneBlock::Kind::text:
    case PaneBlock::Kind::note:
    case PaneBlock::Kind::message:
    case PaneBlock::Kind::footnote:
        notes.push_back(block.text);
        return;
    }
}

} // namespace

void PaneRow::addButton(std::string label, std::string spoken, ButtonStyle style) {
    button = std::move(label);
    spokenButton = std::move(spoken);
    buttonStyle = style;
}

void PaneContent::addRows(std::string eyebrow, std::vector<PaneRow> rows) {
    blocks.push_back({.kind = PaneBlock::Kind::rows, .eyebrow = std::move(eyebrow), .rows = std::move(rows)});
}

void PaneContent::addCards(PaneBlock::Kind kind, std::vector<PaneRow> cards) {
    blocks.push_back({.kind = kind, .rows = std::move(cards)});
}

void PaneContent::addCallout(std::string calloutTitle, std::string text) {
    blocks.push_back({.kind = PaneBlock::Kind::callout,
                      .title = std::move(calloutTitle),
                      .text = std::move(text),
                      .tint = "amber"});
}

void PaneContent::addText(PaneBlock::Kind kind, std::string text) {
    blocks.push_back({.kind = kind, .text = std::move(text)});
}

std::vector<PaneRow> PaneContent::rows() const {
    std::vector<PaneRow> all;
    for (const PaneBlock& block : blocks) {
        all.insert(all.end(), block.rows.begin(), block.rows.end());
    }
    return all;
}

std::vector<std::string> PaneContent::notes() const {
    std::vector<std::string> notes;
    for (const PaneBlock& block : blocks) {
        addNotes(notes, block);
    }
    return notes;
}

} // namespace kestrelfen
