// The ground of a row or a panel of a form.
import QtQuick
import Vitrelle

ContinuousRectangle {
    implicitWidth: Surroundings.screenWidth - 60
    implicitHeight: 45
    radius: 16
    colour: Qt.rgba(0.17, 0.17, 0.18, Surroundings.dark ? 1 : 0.55)
}
