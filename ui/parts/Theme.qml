// Colours and sizes that screens share. Colours are sRGB, sizes points.
pragma Singleton
import QtQuick
import Vitrelle

QtObject {
    readonly property color accent: Qt.rgba(0.39, 0.9, 0.89, 1)
    readonly property color card: Qt.rgba(0.17, 0.17, 0.18, 1)
    readonly property color backdrop: Qt.rgba(0.07, 0.07, 0.07, 1)
    readonly property color tick: Qt.rgba(0.2, 0.78, 0.35, 1)
    readonly property color blue: Qt.rgba(0.04, 0.52, 1, 1)
    readonly property color grey: Qt.rgba(0.56, 0.56, 0.58, 1)
    // A symbol on the screen's own ground: 3:1 at least against all of it.
    readonly property color quietSymbol: Surroundings.dark ? grey : Qt.rgba(0.8, 0.8, 0.82, 1)
    readonly property color text: "white"
    readonly property color quietText: Qt.rgba(0.92, 0.92, 0.96, Surroundings.dark ? 0.72 : 0.86) // 4.5:1
    // Titles are white in both appearances, so the light one is a colour and not white.
    readonly property color screenTop: Surroundings.dark ? Qt.rgba(0.10, 0.12, 0.13, 1) : Qt.rgba(0.12, 0.38, 0.45, 1)
    readonly property color screenBottom: Surroundings.dark ? backdrop : Qt.rgba(0.13, 0.27, 0.40, 1)

    readonly property string face: "Inter"
    readonly property bool tall: Surroundings.screenHeight >= 800
    readonly property real topInset: tall ? 47 : 20
    readonly property real bottomInset: tall ? 14 : 0
    readonly property int shortTime: Surroundings.animated ? 200 : 0
    readonly property int longTime: Surroundings.animated ? 350 : 0
}
