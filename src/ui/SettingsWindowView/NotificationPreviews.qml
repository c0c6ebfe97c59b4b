pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// What the notifications would look like, side by side.
Row {
    id: row

    required property var previews

    spacing: 12

    Repeater {
        id: repeater
        model: row.previews
        delegate: NotificationPreview {
            required property var modelData

            width: (row.width - row.spacing * (repeater.count - 1)) / repeater.count
            title: modelData.title
            spoken: modelData.spoken
            time: modelData.time
            body: modelData.body
            opacity: modelData.isProminent || Glass.highContrast ? 1 : 0.85
        }
    }
}
