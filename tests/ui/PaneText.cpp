#include "PaneText.hpp"

namespace kestrelfen {

namespace {

struct ControlText {
    std::string operator()(const StepperState& stepper) const {
        return stepper.value + (stepper.isInvalid ? " invalid" : "") + (stepper.canDecrement ? " -" : "") +
               (stepper.canIncrement ? " +" : "");
    }
    std::string operator()(const PillsState& pills) const {
        std::string text = pills.accentSelection ? "accent" : "plain";
        for (std::size_t index = 0; index < pills.options.size(); ++index) {
            const std::string& label = pills.options[index].label;
            text += pills.selected == index ? " [" + label + "]" : " " + label;
        }
        return text;
    }
    std::string operator()(const ToggleState& toggle) const { return toggle.isOn ? "on" : "off"; }
    std::string operator()(const CardState& card) const { return card.isSelected ? "selected" : "card"; }
    std::string operator()(const ToldState& told) const { return told.word; }
};

std::string kindText(PaneBlock::Kind kind) {
    switch (kind) {
    case PaneBlock::Kind::rows:
        return "rows";
    case PaneBlock::Kind::cards:
        return "cards";
    case PaneBlock::Kind::modeCards:
        return "mode cards";
    case PaneBlock::Kind::callout:
        return "callout";
    case PaneBlock::Kind::disclosure:
        return "disclosure";
    case PaneBlock::Kind::status:
        return "status";
    case PaneBlock::Kind::text:
        return "text";
    case PaneBlock::Kind::note:
        return "note";
    case PaneBlock::Kind::message:
        return "message";
    case PaneBlock::Kind::footnote:
        return "footnote";
    case PaneBlock::Kind::previews:
        return "previews";
    case PaneBlock::Kind::buttons:
        return "buttons";
    }
    return {};
}

std::string headOf(const PaneBlock& block) {
    std::string head = kindText(block.kind);
    for (const std::string& part : {block.tint, block.title, block.text}) {
        head += part.empty() ? "" : " / " + part;
    }
    return head + "\n";
}

} // namespace

std::string rowText(const PaneRow& row) {
    std::string text = row.title;
    if (row.caption) {
        text += " / " + (row.captionTint == "faint" ? "" : row.captionTint + ": ") + *row.caption;
    }
    if (!row.button.empty()) {
        const bool isPlain = row.buttonStyle == PaneRow::ButtonStyle::plain;
        text += " / " + (isPlain ? row.button : "<" + row.button + ">");
    }
    return text + " / " + std::visit(ControlText(), row.control) + (row.isEnabled ? "" : " (no clicks)");
}

std::string paneText(const PaneContent& pane) {
    std::string text = pane.title + "\n" + pane.sentence + "\n";
    for (const PaneBlock& block : pane.blocks) {
        text += (block.eyebrow.empty() ? "" : "# " + block.eyebrow + "\n") + headOf(block);
        for (const PaneRow& row : block.rows) {
            text += "  " + rowText(row) + "\n";
        }
        for (const NotificationPreview& preview : block.previews) {
            text += "  " + preview.time + " / " + preview.body + (preview.isProminent ? " / prominent" : "") +
                    "\n";
        }
        for (const PaneBlock::Button& button : block.buttons) {
            text += "  <" + button.label + ">" + (button.isEnabled ? "" : " (no clicks)") + "\n";
        }
    }
    return text;
}

} // namespace kestrelfen
