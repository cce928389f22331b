// The symbol sheet on its own, over a choice that nobody keeps.
import Vitrelle

SymbolPickerPage {
    icon: "pencil"
    onPicked: name => icon = name
}
