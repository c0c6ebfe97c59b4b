import QtQuick
import Kestrelfen

/// Groups of rows with steppers, switches and pills.
Column {
    id: column

    spacing: 8

    Eyebrow {
        x: 2
        text: "Steppers"
    }

    RowGroup {
        width: column.width

        SettingRow {
            title: "Work interval"

            StepperControl {
                value: "20 min"
                spokenLabel: "Work interval"
            }
        }

        SettingRow {
            title: "Long break"
            caption: "must exceed the short break"
            captionTint: Glass.amber

            StepperControl {
                value: "5 min"
                isInvalid: true
                spokenLabel: "Long break"
            }
        }

        SettingRow {
            title: "Long break every"

            StepperControl {
                value: "12 cycles"
                canIncrement: false
                spokenLabel: "Long break every"
            }
        }

        SettingRow {
            title: "Warning HUD lead time"
            caption: "Shown before the overlay appears"

            StepperControl {
                value: "0 s"
                canDecrement: false
                spokenLabel: "Warning HUD lead time"
            }
        }
    }

    Item {
        width: 1
        height: 4
    }

    Eyebrow {
        x: 2
        text: "Switches and pills"
    }

    RowGroup {
        width: column.width

        SettingRow {
            title: "Meetings or Calls"
            caption: "Pauses while an app in the list is using the microphone · 8 apps"

            PlainLink {
                anchors.verticalCenter: parent.verticalCenter
                label: "Configure"
            }

            GlassToggle {
                anchors.verticalCenter: parent.verticalCenter
                isOn: true
                spokenLabel: "Meetings or Calls"
            }
        }

        SettingRow {
            title: "Deep Focus Apps"

            GlassToggle {
                isOn: false
                spokenLabel: "Deep Focus Apps"
            }
        }

        SettingRow {
            title: "Switched off for now"

            GlassToggle {
                isOn: true
                enabled: false
                spokenLabel: "Switched off for now"
            }
        }

        SettingRow {
            title: "Menu bar snooze button"
            caption: "The reminder and the break screen offer +1, +3 and +5 directly"

            SegmentedPills {
                accentSelection: true
                selection: 300
                spokenLabel: "Menu bar snooze button"
                options: [
                    {
                        value: 60,
                        label: "1 min"
                    },
                    {
                        value: 180,
                        label: "3 min"
                    },
                    {
                        value: 300,
                        label: "5 min"
                    }
                ]
            }
        }

        SettingRow {
            title: "Snoozes allowed per day"
            caption: "Resets at local midnight"

            SegmentedPills {
                selection: 3
                spokenLabel: "Snoozes allowed per day"
                options: ["None", "1", "2", "3", "5", "No limit"].map((label, index) => ({
                            value: index,
                            label: label
                        }))
            }
        }
    }

    RowGroup {
        width: column.width

        SettingRow {
            title: "A group of one row"
            caption: "Its own corners all round"
        }
    }
}
