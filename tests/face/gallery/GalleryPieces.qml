import QtQuick
import Kestrelfen

/// Cards, rings, bars, badges and buttons.
Column {
    id: column

    spacing: 14

    GlassSurface {
        width: column.width
        height: 176
        radius: 16

        Row {
            anchors.centerIn: parent
            spacing: 24

            Repeater {
                model: [0, 0.37, 1, 1.4]
                delegate: CountdownRing {
                    required property real modelData
                    remaining: modelData
                    label: modelData > 0 ? "7:38" : "0:00"
                    diameter: 100
                    lineWidth: 8
                    labelSize: 22
                }
            }
        }
    }

    GlassSurface {
        width: column.width
        height: 118
        radius: 18
        recessed: true

        Column {
            anchors.fill: parent
            anchors.margins: 18
            spacing: 12

            Row {
                spacing: 8

                TypeBadge {
                    text: "Active"
                    tint: Glass.accent
                }

                TypeBadge {
                    text: "Skipped"
                    tint: Glass.amber
                }

                TypeBadge {
                    text: "Paused · sharing"
                    tint: Glass.slate
                }
            }

            Repeater {
                model: [-0.4, 0.02, 0.6, 1.7]
                delegate: TrackBar {
                    required property real modelData
                    width: column.width - 36
                    barHeight: 5
                    fraction: modelData
                }
            }
        }
    }

    Repeater {
        model: [true, false]
        delegate: Row {
            required property bool modelData
            spacing: 12
            enabled: modelData

            PrimaryAction {
                label: "Break Now"
            }

            SecondaryAction {
                label: "Postpone 5m"
            }

            DangerAction {
                label: "Delete"
            }

            PlainLink {
                anchors.verticalCenter: parent.verticalCenter
                label: "See All"
            }
        }
    }

    GlassSurface {
        width: column.width
        height: 46

        TextInputField {
            anchors.fill: parent
            anchors.margins: 14
            placeholder: "Add a task — return to save, escape to cancel"
        }
    }

    GlassSurface {
        width: column.width
        height: 46

        TextInputField {
            anchors.fill: parent
            anchors.margins: 14
            text: "Draft the release notes for 2.4"
            spokenLabel: "Title"
        }
    }

    GlassSurface {
        width: column.width
        height: 150

        GalleryList {
            anchors.fill: parent
            anchors.margins: 12
        }
    }

    Column {
        spacing: 4

        Repeater {
            model: [9.5, 10, 10.5, 11, 11.5, 12, 12.5, 13, 13.5]
            delegate: Label {
                required property real modelData
                text: modelData + " Find a stopping point. Dismissing keeps the break."
                size: modelData
                color: modelData % 1 ? Glass.ink : Glass.slate
            }
        }
    }
}
