<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="PZTitle">
        <source></source>
        <translation>Perspective Zoom</translation>
    </message>
    <message id="PZSub">
        <source></source>
        <translation>Switch it off, and the wallpaper goes on behind your widgets.</translation>
    </message>
    <message id="AboutPZ">
        <source></source>
        <translation>What it does</translation>
    </message>
    <message id="AboutPZD">
        <source></source>
        <translation>With perspective zoom the phone draws the wallpaper a little larger and moves it when you tilt the phone. A widget shows a still slice of it, so the two no longer line up. Open the settings, choose the wallpaper, and switch the effect off in its preview: every slice then fits its place.</translation>
    </message>
    <message id="app.close">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="app.help">
        <source></source>
        <translation>Help</translation>
    </message>
    <message id="app.info">
        <source></source>
        <translation>About Vitrelle</translation>
    </message>
    <message id="app.widgetCentre">
        <source></source>
        <translation>Widget Centre</translation>
    </message>
    <message id="app.widgetsRefreshed">
        <source></source>
        <translation>The widgets draw themselves anew.</translation>
    </message>
    <message id="app.review.question">
        <source></source>
        <translation>Do you like Vitrelle?</translation>
    </message>
    <message id="app.review.why">
        <source></source>
        <translation>A review helps other people find it. It takes a minute.</translation>
    </message>
    <message id="app.review.open">
        <source></source>
        <translation>Leave a Review</translation>
    </message>
    <message id="app.review.later">
        <source></source>
        <translation>Not Now</translation>
    </message>
    <message id="app.review.never">
        <source></source>
        <translation>Don’t Ask Again</translation>
    </message>
    <message id="app.review.nowhere">
        <source></source>
        <translation>This build of Vitrelle names no page for reviews.</translation>
    </message>
    <message id="app.menu.choose">
        <source></source>
        <translation>Choose a Screenshot…</translation>
    </message>
    <message id="app.menu.paste">
        <source></source>
        <translation>Paste</translation>
    </message>
    <message id="app.page">
        <source></source>
        <translation>Page %1 of %2</translation>
    </message>
    <message id="app.picker.pictures">
        <source></source>
        <translation>Pictures</translation>
    </message>
    <message id="app.picker.computer">
        <source></source>
        <translation>Computer</translation>
    </message>
    <message id="app.picker.damaged">
        <source></source>
        <translation>%1, which can’t be shown</translation>
    </message>
    <message id="app.picker.empty">
        <source></source>
        <translation>There are no pictures in this folder.</translation>
    </message>
    <message id="app.picker.folder">
        <source></source>
        <translation>Folder %1</translation>
    </message>
    <message id="app.picker.gone">
        <source></source>
        <translation>This folder is no longer there.</translation>
    </message>
    <message id="app.picker.home">
        <source></source>
        <translation>Home</translation>
    </message>
    <message id="app.picker.unreadable">
        <source></source>
        <translation>This folder can’t be read.</translation>
    </message>
    <message id="app.picker.title">
        <source></source>
        <translation>Choose a Screenshot</translation>
    </message>
    <message id="app.select">
        <source></source>
        <translation>Use style %1</translation>
    </message>
    <message id="app.selected">
        <source></source>
        <translation>Style %1, in use</translation>
    </message>
    <message id="app.launchFirst">
        <source></source>
        <translation>Start Vitrelle once without --screen first</translation>
    </message>
    <message id="app.store.readOnly">
        <source></source>
        <translation>Vitrelle can’t save here. %1</translation>
    </message>
    <message id="app.store.unreadable">
        <source></source>
        <translation>What is stored can’t be read, so nothing is changed. %1</translation>
    </message>
    <message id="app.unreadable">
        <source></source>
        <translation>This picture can’t be used. %1</translation>
    </message>
    <message id="app.back">
        <source></source>
        <translation>Back</translation>
    </message>
    <message id="app.clear">
        <source></source>
        <translation>Clear</translation>
    </message>
    <message id="app.search">
        <source></source>
        <translation>Search</translation>
    </message>
    <message id="app.working">
        <source></source>
        <translation>Working</translation>
    </message>
    <message id="app.fonts.none">
        <source></source>
        <translation>No font has this name.</translation>
    </message>
    <message id="app.gallery.tile">
        <source></source>
        <translation>Widget Style %1</translation>
    </message>
    <message id="app.gallery.current">
        <source></source>
        <translation>Widget Style %1 is in use</translation>
    </message>
    <message id="app.gallery.use">
        <source></source>
        <translation>Use Widget Style %1</translation>
    </message>
    <message id="app.colour.shade">
        <source></source>
        <translation>Saturation and brightness</translation>
    </message>
    <message id="app.colour.hue">
        <source></source>
        <translation>Hue</translation>
    </message>
    <message id="app.colour.opacity">
        <source></source>
        <translation>Opacity</translation>
    </message>
    <message id="app.colour.digits">
        <source></source>
        <translation>Colour in hexadecimal digits</translation>
    </message>
    <message id="app.colour.eyedropper">
        <source></source>
        <translation>Pick from the screen</translation>
    </message>
    <message id="app.style">
        <source></source>
        <translation>Vitrelle Style %1</translation>
    </message>
    <message id="app.clipboardEmpty">
        <source></source>
        <translation>The clipboard holds no picture.</translation>
    </message>
    <message id="app.intake.ways">
        <source></source>
        <translation>A screenshot can also be dropped on its half, or pasted with Ctrl+V.</translation>
    </message>
    <message id="app.pictureSet">
        <source></source>
        <translation>picture set</translation>
    </message>
    <message id="app.gallery.linked">
        <source></source>
        <translation>linked to Vitrelle Style %1</translation>
    </message>
    <message id="app.saved">
        <source></source>
        <translation>Saved</translation>
    </message>
    <message id="app.intake.tooMany">
        <source></source>
        <translation>Two pictures are taken at most: a light one and a dark one.</translation>
    </message>
    <message id="ColourVitrelles">
        <source></source>
        <translation>Solid Background</translation>
    </message>
    <message id="EnableColourVitrelle">
        <source></source>
        <translation>Use a Solid Colour</translation>
    </message>
    <message id="EnableColourVitrelleD">
        <source></source>
        <translation>All widgets stand on one colour instead of the wallpaper. Your wallpapers stay, and come back when you switch it off.</translation>
    </message>
    <message id="SetSolidColour">
        <source></source>
        <translation>Colour</translation>
    </message>
    <message id="WidgetPreview">
        <source></source>
        <translation>Widget Preview</translation>
    </message>
    <message id="CustomiseDate">
        <source></source>
        <translation>Date Widget</translation>
    </message>
    <message id="SetTextColour">
        <source></source>
        <translation>Text Colour</translation>
    </message>
    <message id="PickFont">
        <source></source>
        <translation>Font</translation>
    </message>
    <message id="app.fontSize">
        <source></source>
        <translation>Font Size: </translation>
    </message>
    <message id="AllSettingAutoSaves">
        <source></source>
        <translation>Every setting is saved at once.</translation>
    </message>
    <message id="app.location.question">
        <source></source>
        <translation>Allow Vitrelle to use your location?</translation>
    </message>
    <message id="app.location.why">
        <source></source>
        <translation>It is used for the weather where you are. It is sent to the weather service and to nobody else.</translation>
    </message>
    <message id="app.location.allow">
        <source></source>
        <translation>Allow While Using</translation>
    </message>
    <message id="app.location.deny">
        <source></source>
        <translation>Don’t Allow</translation>
    </message>
    <message id="app.location.title">
        <source></source>
        <translation>Location</translation>
    </message>
    <message id="app.location.permission">
        <source></source>
        <translation>Vitrelle may use your location</translation>
    </message>
    <message id="app.location.never">
        <source></source>
        <translation>Never</translation>
    </message>
    <message id="app.location.whenInUse">
        <source></source>
        <translation>While it is used</translation>
    </message>
    <message id="app.location.always">
        <source></source>
        <translation>Always</translation>
    </message>
    <message id="app.location.source">
        <source></source>
        <translation>Where it comes from</translation>
    </message>
    <message id="app.location.desktop">
        <source></source>
        <translation>This computer</translation>
    </message>
    <message id="app.location.noDesktop">
        <source></source>
        <translation>It has no location service</translation>
    </message>
    <message id="app.location.place">
        <source></source>
        <translation>A fixed place</translation>
    </message>
    <message id="app.location.none">
        <source></source>
        <translation>Nowhere</translation>
    </message>
    <message id="app.location.search">
        <source></source>
        <translation>Search for a town</translation>
    </message>
    <message id="app.location.unknown">
        <source></source>
        <translation>No town of that name is known.</translation>
    </message>
    <message id="ExportWidgetError">
        <source></source>
        <translation>This widget’s picture can’t be shared, for it can’t be read.</translation>
    </message>
    <message id="app.export.noStyles">
        <source></source>
        <translation>There is no style yet. Once you have made one, its widgets can be exported here.</translation>
    </message>
    <message id="app.export.hint">
        <source></source>
        <translation>Press a widget to share its picture.</translation>
    </message>
    <message id="app.slot.topLeft">
        <source></source>
        <translation>Top left</translation>
    </message>
    <message id="app.slot.topRight">
        <source></source>
        <translation>Top right</translation>
    </message>
    <message id="app.slot.middleLeft">
        <source></source>
        <translation>Middle left</translation>
    </message>
    <message id="app.slot.middleRight">
        <source></source>
        <translation>Middle right</translation>
    </message>
    <message id="app.slot.bottomLeft">
        <source></source>
        <translation>Bottom left</translation>
    </message>
    <message id="app.slot.bottomRight">
        <source></source>
        <translation>Bottom right</translation>
    </message>
    <message id="app.slot.top">
        <source></source>
        <translation>Top</translation>
    </message>
    <message id="app.slot.middle">
        <source></source>
        <translation>Middle</translation>
    </message>
    <message id="app.slot.bottom">
        <source></source>
        <translation>Bottom</translation>
    </message>
    <message id="app.share.title">
        <source></source>
        <translation>Share</translation>
    </message>
    <message id="app.share.pixels">
        <source></source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message id="app.share.drag">
        <source></source>
        <translation>The picture can also be dragged into another program.</translation>
    </message>
    <message id="app.share.saveAs">
        <source></source>
        <translation>Save As…</translation>
    </message>
    <message id="app.share.copy">
        <source></source>
        <translation>Copy</translation>
    </message>
    <message id="app.share.open">
        <source></source>
        <translation>Open in a Program</translation>
    </message>
    <message id="app.share.copied">
        <source></source>
        <translation>Copied</translation>
    </message>
    <message id="app.share.saved">
        <source></source>
        <translation>Saved as %1</translation>
    </message>
    <message id="app.share.unsaved">
        <source></source>
        <translation>%1 can’t be saved. %2</translation>
    </message>
    <message id="app.share.noCopy">
        <source></source>
        <translation>There is no room for the copy that another program would open.</translation>
    </message>
    <message id="app.share.noOpener">
        <source></source>
        <translation>%1, which opens files on this desktop, is not installed.</translation>
    </message>
    <message id="app.share.noProgram">
        <source></source>
        <translation>No program on this desktop opens such a file.</translation>
    </message>
    <message id="app.share.name">
        <source></source>
        <translation>File name</translation>
    </message>
    <message id="app.share.save">
        <source></source>
        <translation>Save</translation>
    </message>
    <message id="app.share.replaceTitle">
        <source></source>
        <translation>Replace “%1”?</translation>
    </message>
    <message id="app.share.replaceMessage">
        <source></source>
        <translation>A file of this name is there already.</translation>
    </message>
    <message id="app.share.replace">
        <source></source>
        <translation>Replace</translation>
    </message>
    <message id="app.share.cancel">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <message id="app.quit">
        <source></source>
        <translation>Quit</translation>
    </message>
    <message id="app.phone.title">
        <source></source>
        <translation>Phone Settings</translation>
    </message>
    <message id="app.phone.menu">
        <source></source>
        <translation>Phone Settings …</translation>
    </message>
    <message id="app.phone.which">
        <source></source>
        <translation>Which iPhone?</translation>
    </message>
    <message id="app.phone.search">
        <source></source>
        <translation>Search, such as “SE 3”</translation>
    </message>
    <message id="app.phone.unknown">
        <source></source>
        <translation>No iPhone has these words in its name.</translation>
    </message>
    <message id="app.phone.bothDisplays">
        <source></source>
        <translation>Standard and zoomed display</translation>
    </message>
    <message id="app.phone.standardDisplay">
        <source></source>
        <translation>Standard display</translation>
    </message>
    <message id="app.phone.zoomedOnly">
        <source></source>
        <translation>Zoomed display</translation>
    </message>
    <message id="app.phone.unmeasured">
        <source></source>
        <translation>No measurements, so no slots</translation>
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
        <translation>iOS 18 and later</translation>
    </message>
    <message id="app.phone.before18">
        <source></source>
        <translation>Before iOS 18</translation>
    </message>
    <message id="app.phone.zoomed">
        <source></source>
        <translation>Zoomed display</translation>
    </message>
    <message id="app.phone.appearance">
        <source></source>
        <translation>Appearance</translation>
    </message>
    <message id="app.phone.asDesktop">
        <source></source>
        <translation>As the desktop</translation>
    </message>
    <message id="app.phone.light">
        <source></source>
        <translation>Light</translation>
    </message>
    <message id="app.phone.dark">
        <source></source>
        <translation>Dark</translation>
    </message>
    <message id="app.phone.sources">
        <source></source>
        <translation>Weather</translation>
    </message>
    <message id="app.phone.foreign">
        <source></source>
        <translation>This screenshot has %1 pixels, so it is not from the %2 that Vitrelle is set to. Which iPhone is it from?</translation>
    </message>
    <message id="app.phone.or">
        <source></source>
        <translation>or %1</translation>
    </message>
    <message id="app.phone.isZoomed">
        <source></source>
        <translation>%1 (zoomed)</translation>
    </message>
    <message id="app.phone.keep">
        <source></source>
        <translation>Keep %1</translation>
    </message>
    <message id="app.phone.now">
        <source></source>
        <translation>Set to %1</translation>
    </message>
</context>
</TS>
