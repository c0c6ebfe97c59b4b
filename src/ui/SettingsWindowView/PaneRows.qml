pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// A group of labelled controls.
RowGroup {
    id: group

    required property KeyedListModel list

    signal stepped(string key, bool up)
    signal chosen(string key, string word)
    signal turned(string key, bool on)
    signal pressed(string key)

    Repeater {
        model: group.list
        delegate: PaneRow {
            onStepped: up => group.stepped(key, up)
            onChosen: word => group.chosen(key, word)
            onTurned: on => group.turned(key, on)
            onPressed: group.pressed(key)
        }
    }
}
