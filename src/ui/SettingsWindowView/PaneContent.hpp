#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kestrelfen {

/// A minus and a plus around a value.
struct StepperState {
    std::string value;
    bool isInvalid = false;
    bool canDecrement = false;
    bool canIncrement = false;
    /// What the minus and the plus are called by who cannot see them.
    std::string decrementLabel = {};
    std::string incrementLabel = {};

    friend bool operator==(const StepperState&, const StepperState&) = default;
};

/// One of several labels.
struct PillsState {
    struct Option {
        /// What is written when this one is chosen.
        std::string word;
        std::string label;

        friend bool operator==(const Option&, const Option&) = default;
    };

    std::vector<Option> options = {};
    /// Absent when the value in force is none of these.
    std::optional<std::size_t> selected = {};
    bool accentSelection = false;

    friend bool operator==(const PillsState&, const PillsState&) = default;
};

struct ToggleState {
    bool isOn = false;

    friend bool operator==(const ToggleState&, const ToggleState&) = default;
};

/// One of a row of cards that exclude each other.
struct CardState {
    bool isSelected = false;
    /// What is written when this one is chosen.
    std::string word;
    /// Over the title; empty for none.
    std::string eyebrow = {};

    friend bool operator==(const CardState&, const CardState&) = default;
};

/// A word that tells how something stands, with nothing to press.
struct ToldState {
    enum class Mood { good, doubtful, absent };

    std::string word;
    Mood mood = Mood::good;

    friend bool operator==(const ToldState&, const ToldState&) = default;
};

/// One labelled control of a pane.
struct PaneRow {
    enum class ButtonStyle { plain, secondary };

    /// What the control is bound to, the name of a preference where it is one.
    std::string key;
    std::string title;
    std::optional<std::string> caption = {};
    std::variant<StepperState, PillsState, ToggleState, CardState, ToldState> control = {};
    bool isEnabled = true;
    /// Of the caption: the name of a colour.
    std::string captionTint = "faint";
    /// The label of a button in front of the control; empty for none.
    std::string button = {};
    /// What that button is called by who cannot see the row.
    std::string spokenButton = {};
    ButtonStyle buttonStyle = ButtonStyle::plain;

    /// Puts a button in front of the control; `spoken` is what it is called by who cannot see the row.
    void addButton(std::string label, std::string spoken, ButtonStyle style);

    friend bool operator==(const PaneRow&, const PaneRow&) = default;
};

/// What a notification would look like.
struct NotificationPreview {
    static constexpr std::string_view title = "Kestrelfen";

    std::string time;
    std::string body;
    bool isProminent = false;

    /// All of it, for who cannot see it.
    std::string spoken() const { return std::string(title) + ", " + time + ": " + body; }

    friend bool operator==(const NotificationPreview&, const NotificationPreview&) = default;
};

/// One thing under another in a pane.
struct PaneBlock {
    enum class Kind {
        rows,
        /// Filled where selected.
        cards,
        /// Outlined where selected.
        modeCards,
        callout,
        disclosure,
        status,
        text,
        /// Belongs to the block above it.
        note,
        message,
        footnote,
        previews,
        buttons
    };

    struct Button {
        std::string label;
        bool isEnabled = true;

        friend bool operator==(const Button&, const Button&) = default;
    };

    Kind kind = Kind::text;
    /// Stands over the block; empty for none.
    std::string eyebrow = {};
    /// Of a callout or a disclosure.
    std::string title = {};
    std::string text = {};
    /// The name of a colour; empty for the kind's own.
    std::string tint = {};
    std::vector<PaneRow> rows = {};
    std::vector<NotificationPreview> previews = {};
    std::vector<Button> buttons = {};

    friend bool operator==(const PaneBlock&, const PaneBlock&) = default;
};

/// Every text, number and flag of one settings pane at one moment, from top to bottom.
struct PaneContent {
    std::string title;
    std::string sentence;
    std::vector<PaneBlock> blocks = {};
    /// Whether the program's mark stands over the title.
    bool hasMark = false;

    void addRows(std::string eyebrow, std::vector<PaneRow> rows);
    void addCards(PaneBlock::Kind kind, std::vector<PaneRow> cards);
    void addCallout(std::string title, std::string text);
    void addText(PaneBlock::Kind kind, std::string text);

    /// All rows and cards, in order.
    std::vector<PaneRow> rows() const;
    /// All that is told beside them, in order; a callout as "TITLE: TEXT".
    std::vector<std::string> notes() const;

    friend bool operator==(const PaneContent&, const PaneContent&) = default;
};

} // namespace kestrelfen
