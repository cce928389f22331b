<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="PZTitle">
        <source></source>
        <translation>Perspektivzoom</translation>
    </message>
    <message id="PZSub">
        <source></source>
        <translation>Schalte ihn aus, und das Hintergrundbild geht hinter deinen Widgets weiter.</translation>
    </message>
    <message id="AboutPZ">
        <source></source>
        <translation>Was er bewirkt</translation>
    </message>
    <message id="AboutPZD">
        <source></source>
        <translation>Mit dem Perspektivzoom zeichnet das Telefon das Hintergrundbild etwas größer und verschiebt es, wenn du das Gerät neigst. Ein Widget zeigt einen festen Ausschnitt davon, und beide passen nicht mehr zueinander. Öffne die Einstellungen, wähle das Hintergrundbild und schalte den Effekt in der Vorschau aus: Dann passt jeder Ausschnitt an seinen Platz.</translation>
    </message>
    <message id="app.close">
        <source></source>
        <translation>Schließen</translation>
    </message>
    <message id="app.help">
        <source></source>
        <translation>Hilfe</translation>
    </message>
    <message id="app.info">
        <source></source>
        <translation>Über Vitrelle</translation>
    </message>
    <message id="app.widgetCentre">
        <source></source>
        <translation>Widget-Zentrale</translation>
    </message>
    <message id="app.widgetsRefreshed">
        <source></source>
        <translation>Die Widgets zeichnen sich neu.</translation>
    </message>
    <message id="app.review.question">
        <source></source>
        <translation>Gefällt dir Vitrelle?</translation>
    </message>
    <message id="app.review.why">
        <source></source>
        <translation>Eine Bewertung hilft anderen, es zu finden. Sie dauert eine Minute.</translation>
    </message>
    <message id="app.review.open">
        <source></source>
        <translation>Bewertung schreiben</translation>
    </message>
    <message id="app.review.later">
        <source></source>
        <translation>Nicht jetzt</translation>
    </message>
    <message id="app.review.never">
        <source></source>
        <translation>Nicht mehr fragen</translation>
    </message>
    <message id="app.review.nowhere">
        <source></source>
        <translation>Diese Ausgabe von Vitrelle nennt keine Seite für Bewertungen.</translation>
    </message>
    <message id="app.menu.choose">
        <source></source>
        <translation>Bildschirmfoto auswählen …</translation>
    </message>
    <message id="app.menu.paste">
        <source></source>
        <translation>Einfügen</translation>
    </message>
    <message id="app.page">
        <source></source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message id="app.picker.pictures">
        <source></source>
        <translation>Bilder</translation>
    </message>
    <message id="app.picker.computer">
        <source></source>
        <translation>Computer</translation>
    </message>
    <message id="app.picker.damaged">
        <source></source>
        <translation>%1, lässt sich nicht anzeigen</translation>
    </message>
    <message id="app.picker.empty">
        <source></source>
        <translation>In diesem Ordner sind keine Bilder.</translation>
    </message>
    <message id="app.picker.folder">
        <source></source>
        <translation>Ordner %1</translation>
    </message>
    <message id="app.picker.gone">
        <source></source>
        <translation>Diesen Ordner gibt es nicht mehr.</translation>
    </message>
    <message id="app.picker.home">
        <source></source>
        <translation>Persönlicher Ordner</translation>
    </message>
    <message id="app.picker.unreadable">
        <source></source>
        <translation>Dieser Ordner lässt sich nicht lesen.</translation>
    </message>
    <message id="app.picker.title">
        <source></source>
        <translation>Bildschirmfoto auswählen</translation>
    </message>
    <message id="app.select">
        <source></source>
        <translation>Stil %1 verwenden</translation>
    </message>
    <message id="app.selected">
        <source></source>
        <translation>Stil %1, in Gebrauch</translation>
    </message>
    <message id="app.launchFirst">
        <source></source>
        <translation>Zuerst muss Vitrelle einmal ohne --screen starten</translation>
    </message>
    <message id="app.store.readOnly">
        <source></source>
        <translation>Vitrelle kann hier nicht speichern. %1</translation>
    </message>
    <message id="app.store.unreadable">
        <source></source>
        <translation>Was gespeichert ist, lässt sich nicht lesen; darum wird nichts geändert. %1</translation>
    </message>
    <message id="app.unreadable">
        <source></source>
        <translation>Dieses Bild lässt sich nicht verwenden. %1</translation>
    </message>
    <message id="app.back">
        <source></source>
        <translation>Zurück</translation>
    </message>
    <message id="app.clear">
        <source></source>
        <translation>Leeren</translation>
    </message>
    <message id="app.search">
        <source></source>
        <translation>Suchen</translation>
    </message>
    <message id="app.working">
        <source></source>
        <translation>Wird berechnet</translation>
    </message>
    <message id="app.fonts.none">
        <source></source>
        <translation>Keine Schrift heißt so.</translation>
    </message>
    <message id="app.gallery.tile">
        <source></source>
        <translation>Widget-Stil %1</translation>
    </message>
    <message id="app.gallery.current">
        <source></source>
        <translation>Widget-Stil %1 wird verwendet</translation>
    </message>
    <message id="app.gallery.use">
        <source></source>
        <translation>Widget-Stil %1 verwenden</translation>
    </message>
    <message id="app.colour.shade">
        <source></source>
        <translation>Sättigung und Helligkeit</translation>
    </message>
    <message id="app.colour.hue">
        <source></source>
        <translation>Farbton</translation>
    </message>
    <message id="app.colour.opacity">
        <source></source>
        <translation>Deckkraft</translation>
    </message>
    <message id="app.colour.digits">
        <source></source>
        <translation>Farbe in hexadezimalen Ziffern</translation>
    </message>
    <message id="app.colour.eyedropper">
        <source></source>
        <translation>Vom Bildschirm aufnehmen</translation>
    </message>
    <message id="app.style">
        <source></source>
        <translation>Vitrelle Style %1</translation>
    </message>
    <message id="app.clipboardEmpty">
        <source></source>
        <translation>In der Zwischenablage ist kein Bild.</translation>
    </message>
    <message id="app.intake.ways">
        <source></source>
        <translation>Ein Bildschirmfoto lässt sich auch auf seine Hälfte ziehen oder mit Strg+V einfügen.</translation>
    </message>
    <message id="app.pictureSet">
        <source></source>
        <translation>Bild gewählt</translation>
    </message>
    <message id="app.gallery.linked">
        <source></source>
        <translation>mit Vitrelle Style %1 verknüpft</translation>
    </message>
    <message id="app.saved">
        <source></source>
        <translation>Gespeichert</translation>
    </message>
    <message id="app.intake.tooMany">
        <source></source>
        <translation>Höchstens zwei Bilder werden genommen: ein helles und ein dunkles.</translation>
    </message>
    <message id="ColourVitrelles">
        <source></source>
        <translation>Einfarbiger Hintergrund</translation>
    </message>
    <message id="EnableColourVitrelle">
        <source></source>
        <translation>Einfarbig</translation>
    </message>
    <message id="EnableColourVitrelleD">
        <source></source>
        <translation>Alle Widgets stehen auf einer Farbe statt auf dem Hintergrundbild. Die Bilder bleiben erhalten und erscheinen wieder, sobald du es ausschaltest.</translation>
    </message>
    <message id="SetSolidColour">
        <source></source>
        <translation>Farbe</translation>
    </message>
    <message id="WidgetPreview">
        <source></source>
        <translation>Vorschau des Widgets</translation>
    </message>
    <message id="CustomiseDate">
        <source></source>
        <translation>Datums-Widget</translation>
    </message>
    <message id="SetTextColour">
        <source></source>
        <translation>Textfarbe</translation>
    </message>
    <message id="PickFont">
        <source></source>
        <translation>Schrift</translation>
    </message>
    <message id="app.fontSize">
        <source></source>
        <translation>Schriftgröße: </translation>
    </message>
    <message id="AllSettingAutoSaves">
        <source></source>
        <translation>Jede Einstellung wird sofort gespeichert.</translation>
    </message>
    <message id="app.location.question">
        <source></source>
        <translation>Darf Vitrelle Ihren Standort verwenden?</translation>
    </message>
    <message id="app.location.why">
        <source></source>
        <translation>Er wird für das Wetter an Ihrem Ort gebraucht. Nur der Wetterdienst erfährt ihn.</translation>
    </message>
    <message id="app.location.allow">
        <source></source>
        <translation>Beim Verwenden erlauben</translation>
    </message>
    <message id="app.location.deny">
        <source></source>
        <translation>Nicht erlauben</translation>
    </message>
    <message id="app.location.title">
        <source></source>
        <translation>Standort</translation>
    </message>
    <message id="app.location.permission">
        <source></source>
        <translation>Vitrelle darf Ihren Standort verwenden</translation>
    </message>
    <message id="app.location.never">
        <source></source>
        <translation>Nie</translation>
    </message>
    <message id="app.location.whenInUse">
        <source></source>
        <translation>Beim Verwenden</translation>
    </message>
    <message id="app.location.always">
        <source></source>
        <translation>Immer</translation>
    </message>
    <message id="app.location.source">
        <source></source>
        <translation>Woher er kommt</translation>
    </message>
    <message id="app.location.desktop">
        <source></source>
        <translation>Dieser Rechner</translation>
    </message>
    <message id="app.location.noDesktop">
        <source></source>
        <translation>Er hat keinen Ortungsdienst</translation>
    </message>
    <message id="app.location.place">
        <source></source>
        <translation>Ein fester Ort</translation>
    </message>
    <message id="app.location.none">
        <source></source>
        <translation>Von nirgends</translation>
    </message>
    <message id="app.location.search">
        <source></source>
        <translation>Eine Stadt suchen</translation>
    </message>
    <message id="app.location.unknown">
        <source></source>
        <translation>Keine Stadt dieses Namens ist bekannt.</translation>
    </message>
    <message id="ExportWidgetError">
        <source></source>
        <translation>Das Bild dieses Widgets lässt sich nicht lesen und darum nicht teilen.</translation>
    </message>
    <message id="app.export.noStyles">
        <source></source>
        <translation>Noch gibt es keinen Stil. Sobald du einen angelegt hast, kannst du seine Widgets hier exportieren.</translation>
    </message>
    <message id="app.export.hint">
        <source></source>
        <translation>Klicke auf ein Widget, um sein Bild zu teilen.</translation>
    </message>
    <message id="app.slot.topLeft">
        <source></source>
        <translation>Oben links</translation>
    </message>
    <message id="app.slot.topRight">
        <source></source>
        <translation>Oben rechts</translation>
    </message>
    <message id="app.slot.middleLeft">
        <source></source>
        <translation>Mitte links</translation>
    </message>
    <message id="app.slot.middleRight">
        <source></source>
        <translation>Mitte rechts</translation>
    </message>
    <message id="app.slot.bottomLeft">
        <source></source>
        <translation>Unten links</translation>
    </message>
    <message id="app.slot.bottomRight">
        <source></source>
        <translation>Unten rechts</translation>
    </message>
    <message id="app.slot.top">
        <source></source>
        <translation>Oben</translation>
    </message>
    <message id="app.slot.middle">
        <source></source>
        <translation>Mitte</translation>
    </message>
    <message id="app.slot.bottom">
        <source></source>
        <translation>Unten</translation>
    </message>
    <message id="app.share.title">
        <source></source>
        <translation>Teilen</translation>
    </message>
    <message id="app.share.pixels">
        <source></source>
        <translation>%1 × %2 Pixel</translation>
    </message>
    <message id="app.share.drag">
        <source></source>
        <translation>Das Bild lässt sich auch in ein anderes Programm ziehen.</translation>
    </message>
    <message id="app.share.saveAs">
        <source></source>
        <translation>Speichern unter …</translation>
    </message>
    <message id="app.share.copy">
        <source></source>
        <translation>Kopieren</translation>
    </message>
    <message id="app.share.open">
        <source></source>
        <translation>Mit Programm öffnen</translation>
    </message>
    <message id="app.share.copied">
        <source></source>
        <translation>Kopiert</translation>
    </message>
    <message id="app.share.saved">
        <source></source>
        <translation>Gespeichert als %1</translation>
    </message>
    <message id="app.share.unsaved">
        <source></source>
        <translation>%1 lässt sich nicht speichern. %2</translation>
    </message>
    <message id="app.share.noCopy">
        <source></source>
        <translation>Für die Kopie, die ein anderes Programm öffnen würde, ist kein Platz.</translation>
    </message>
    <message id="app.share.noOpener">
        <source></source>
        <translation>%1, das auf diesem Desktop Dateien öffnet, ist nicht installiert.</translation>
    </message>
    <message id="app.share.noProgram">
        <source></source>
        <translation>Kein Programm auf diesem Desktop öffnet solch eine Datei.</translation>
    </message>
    <message id="app.share.name">
        <source></source>
        <translation>Dateiname</translation>
    </message>
    <message id="app.share.save">
        <source></source>
        <translation>Speichern</translation>
    </message>
    <message id="app.share.replaceTitle">
        <source></source>
        <translation>„%1“ ersetzen?</translation>
    </message>
    <message id="app.share.replaceMessage">
        <source></source>
        <translation>Eine Datei dieses Namens gibt es dort schon.</translation>
    </message>
    <message id="app.share.replace">
        <source></source>
        <translation>Ersetzen</translation>
    </message>
    <message id="app.share.cancel">
        <source></source>
        <translation>Abbrechen</translation>
    </message>
    <message id="app.quit">
        <source></source>
        <translation>Beenden</translation>
    </message>
    <message id="app.phone.title">
        <source></source>
        <translation>Telefon</translation>
    </message>
    <message id="app.phone.menu">
        <source></source>
        <translation>Telefon einstellen …</translation>
    </message>
    <message id="app.phone.which">
        <source></source>
        <translation>Welches iPhone?</translation>
    </message>
    <message id="app.phone.search">
        <source></source>
        <translation>Suchen, etwa „SE 3“</translation>
    </message>
    <message id="app.phone.unknown">
        <source></source>
        <translation>Kein iPhone heißt so.</translation>
    </message>
    <message id="app.phone.bothDisplays">
        <source></source>
        <translation>Normale und vergrößerte Anzeige</translation>
    </message>
    <message id="app.phone.standardDisplay">
        <source></source>
        <translation>Normale Anzeige</translation>
    </message>
    <message id="app.phone.zoomedOnly">
        <source></source>
        <translation>Vergrößerte Anzeige</translation>
    </message>
    <message id="app.phone.unmeasured">
        <source></source>
        <translation>Nicht vermessen, also ohne Plätze</translation>
    </message>
    <message id="app.phone.onSystem">
        <source></source>
        <translation>%1: %2</translation>
    </message>
    <message id="app.phone.system">
        <source></source>
        <translation>System</translation>
    </message>
    <message id="app.phone.from18">
        <source></source>
        <translation>iOS 18 und neuer</translation>
    </message>
    <message id="app.phone.before18">
        <source></source>
        <translation>Vor iOS 18</translation>
    </message>
    <message id="app.phone.zoomed">
        <source></source>
        <translation>Vergrößerte Anzeige</translation>
    </message>
    <message id="app.phone.appearance">
        <source></source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message id="app.phone.asDesktop">
        <source></source>
        <translation>Wie der Rechner</translation>
    </message>
    <message id="app.phone.light">
        <source></source>
        <translation>Hell</translation>
    </message>
    <message id="app.phone.dark">
        <source></source>
        <translation>Dunkel</translation>
    </message>
    <message id="app.phone.sources">
        <source></source>
        <translation>Wetter</translation>
    </message>
    <message id="app.phone.foreign">
        <source></source>
        <translation>Dieses Bildschirmfoto hat %1 Pixel, stammt also nicht vom eingestellten %2. Von welchem iPhone ist es?</translation>
    </message>
    <message id="app.phone.or">
        <source></source>
        <translation>oder %1</translation>
    </message>
    <message id="app.phone.isZoomed">
        <source></source>
        <translation>%1 (vergrößert)</translation>
    </message>
    <message id="app.phone.keep">
        <source></source>
        <translation>%1 beibehalten</translation>
    </message>
    <message id="app.phone.now">
        <source></source>
        <translation>Eingestellt: %1</translation>
    </message>
</context>
</TS>
