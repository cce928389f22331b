// Says that something is being worked out.
import QtQuick
import Vitrelle

Item {
    id: spinner

    property int turn: 0

    width: 20
    height: 20
    Accessible.role: Accessible.Animation
    Accessible.name: qsTrId("app.working")

    Repeater {
        model: 8

        Rectangle {
            required property int index

            x: 9
            y: 1
            width: 2.4
            height: 5.5
            radius: 1.2
            antialiasing: true
            color: "white"
            opacity: 0.25 + 0.75 * ((index - spinner.turn + 8) % 8) / 7
            transform: Rotation { origin.x: 1.2; origin.y: 9; angle: index * 45 }
        }
    }
    Timer {
        interval: 90
        repeat: true
        running: spinner.visible && Surroundings.animated
        onTriggered: spinner.turn = (spinner.turn + 1) % 8
    }
}
