// One of the program's own pictures, drawn at the size that it is shown in.
import QtQuick

Image {
    required property string name

    source: "qrc:/pictures/" + name + ".svg"
    sourceSize.width: width
    sourceSize.height: height
    fillMode: Image.PreserveAspectFit
    asynchronous: true
    Accessible.ignored: true
}
