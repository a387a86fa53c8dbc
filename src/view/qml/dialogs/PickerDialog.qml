pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import "PickerGroups.js" as Groups

// Offers pictures in groups, narrowed by what is typed, from wherever it is typed. Arrow keys walk the cells; Return or
// a double click picks one. What then happens is the business of the concrete dialog, which also closes it.
ZmDialog {
    id: root

    property string pickerTitle
    property bool searchEnabled: true
    property string searchPlaceholderText: qsTr("Search")
    property string activateText: qsTr("Choose")
    property Item focusTarget: grid
    property var sourceCategoryGroups: null     // a list of maps of `category` and `items`
    property bool categoryNavigationEnabled: false
    property string categoryNavigationIconRole: "iconName"
    property list<string> categorySearchKeys: ["displayName", "filterName", "generatorId", "keywords"]
    property real categoryCellWidth: 128
    property real categoryCellHeight: 132
    property real categoryCellPadding: 6
    property real categoryPreviewWidth: 88
    property real categoryPreviewHeight: 88
    property color categoryPreviewGround: "transparent"     // behind pictures that have no ground of their own
    property string categoryPreviewRole: "previewSource"
    property string categoryTooltipPreviewRole: "tooltipPreviewSource"
    property real categoryTooltipPreviewWidth: 420
    property real categoryTooltipPreviewHeight: 315
    property string categoryEmptyText: qsTr("No matching items.")
    property real minimumDialogWidth: 600
    property real minimumDialogHeight: 500
    property real preferredDialogWidth: 720
    property real preferredDialogHeight: 620

    property int currentCategoryIndex: -1
    property int currentCategoryItemIndex: -1
    readonly property var currentCategoryItem: groups[currentCategoryIndex]?.items[currentCategoryItemIndex] ?? null
    property alias searchText: searchField.text

    // Kept when the dialog closes; lists have no identity, so equal ones are told by their content.
    property var retainedCategoryGroups: []
    property string retainedKey
    readonly property var groups: Groups.filtered(retainedCategoryGroups, searchText, categorySearchKeys)

    signal categoryItemActivated(var item)

    function retainGroups() {
        if (!visible || !sourceCategoryGroups)
            return
        const key = JSON.stringify(sourceCategoryGroups)
        if (key === retainedKey)
            return
        retainedKey = key
        retainedCategoryGroups = Array.from(sourceCategoryGroups)
    }

    function select(categoryIndex, itemIndex) {
        currentCategoryIndex = categoryIndex
        currentCategoryItemIndex = itemIndex
        grid.showCurrent()
    }

    // In the order of reading, across the groups.
    function moveCategorySelection(delta) {
        const counts = groups.map(group => group.items.length)
        const total = counts.reduce((sum, count) => sum + count, 0)
        if (total === 0)
            return
        let position = currentCategoryItemIndex
        for (let i = 0; i < currentCategoryIndex; ++i)
            position += counts[i]
        position = currentCategoryIndex < 0 ? 0 : Math.max(0, Math.min(position + delta, total - 1))
        let category = 0
        while (position >= counts[category])
            position -= counts[category++]
        select(category, position)
    }

    // To the nearest cell of the line above or below; false if there is none.
    function moveCategoryLine(direction) {
        const column = currentCategoryItemIndex % grid.columns
        for (let i = grid.currentLine + direction; i >= 0 && i < grid.lines.length; i += direction) {
            const line = grid.lines[i]
            if (line.items.length > 0) {
                select(line.categoryIndex, line.first + Math.min(column, line.items.length - 1))
                return true
            }
        }
        return false
    }

    // Scrolls the group to the top.
    function showCategory(index) {
        grid.shownCategory = index
        grid.positionViewAtIndex(grid.lines.findIndex(line => line.heading && line.categoryIndex === index),
                                 ListView.Beginning)
    }

    function address(source) {
        return String(source ?? "").replace(/^:/, "qrc:")
    }

    function activateCurrentCategoryItem() {
        if (currentCategoryItem)
            categoryItemActivated(currentCategoryItem)
    }

    // A key that means text goes to the search field, from wherever it is typed.
    function routeToSearch(event) {
        const erases = event.key === Qt.Key_Backspace || event.key === Qt.Key_Delete
        const prints = event.text.length === 1 && event.text.charCodeAt(0) >= 32 && !erases
        if (!searchEnabled || !(erases || prints)
                || event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier))
            return false
        if (searchField.selectedText) {
            searchField.remove(searchField.selectionStart, searchField.selectionEnd)
        } else {
            searchField.cursorPosition = searchField.length
            if (event.key === Qt.Key_Backspace)
                searchField.remove(searchField.length - 1, searchField.length)
        }
        if (prints)
            searchField.insert(searchField.cursorPosition, event.text)
        searchField.forceActiveFocus()
        return true
    }

    title: pickerTitle
    width: Math.max(minimumDialogWidth, Math.min(preferredDialogWidth, room.width - 2 * Theme.spaceXXL))
    height: Math.max(minimumDialogHeight, Math.min(preferredDialogHeight, room.height - 2 * Theme.spaceXXL))
    defaultButton: activateButton
    onSourceCategoryGroupsChanged: retainGroups()
    onVisibleChanged: retainGroups()
    onAboutToShow: {
        searchField.clear()
        select(-1, -1)
        grid.shownCategory = -1
        grid.positionViewAtBeginning()
    }
    onOpened: focusTarget.forceActiveFocus()
    // The first match is at hand for Return; without a search nothing is current until it is chosen.
    onSearchTextChanged: {
        const found = searchText.trim() && groups.length > 0
        select(found ? 0 : -1, found ? 0 : -1)
        grid.positionViewAtBeginning()
    }

    contentItem: ColumnLayout {
        spacing: Theme.spaceL
        Keys.onPressed: event => event.accepted = root.routeToSearch(event)

        ZmSearchField {
            id: searchField

            Layout.fillWidth: true
            implicitHeight: Theme.controlHeight + Theme.spaceS
            visible: root.searchEnabled
            placeholderText: root.searchPlaceholderText
            Keys.onDownPressed: {
                if (root.currentCategoryIndex < 0)
                    root.moveCategorySelection(1)
                grid.forceActiveFocus()
            }
        }

        RowLayout {
            spacing: Theme.spaceL

            PickerNavigation {
                Layout.fillHeight: true
                visible: root.categoryNavigationEnabled
                model: root.groups
                iconRole: root.categoryNavigationIconRole
                currentIndex: grid.shownCategory >= 0 ? grid.shownCategory : grid.topCategory
                onChosen: index => root.showCategory(index)
            }

            ListView {
                id: grid

                property int shownCategory: -1      // the one gone to, until the view is scrolled
                readonly property int topCategory: lines[indexAt(1, contentY + 1)]?.categoryIndex ?? 0
                readonly property int columns: Math.max(1, Math.floor(cellsWidth / root.categoryCellWidth))
                readonly property real cellsWidth: width - Theme.spaceL
                readonly property var lines: Groups.lines(root.groups, columns)
                readonly property int currentLine: lines.findIndex(
                    line => line.categoryIndex === root.currentCategoryIndex && line.first <= root.currentCategoryItemIndex
                            && root.currentCategoryItemIndex < line.first + line.items.length)

                function showCurrent() {
                    if (currentLine < 0)
                        return
                    if (lines[currentLine - 1]?.heading)
                        positionViewAtIndex(currentLine - 1, ListView.Contain)
                    positionViewAtIndex(currentLine, ListView.Contain)
                }

                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.rightMargin: -Theme.spaceL
                clip: true
                onMovementStarted: shownCategory = -1
                activeFocusOnTab: true
                keyNavigationEnabled: false
                boundsBehavior: Flickable.StopAtBounds
                model: lines
                cacheBuffer: 2 * root.categoryCellHeight
                Accessible.role: Accessible.List
                Accessible.name: root.pickerTitle
                ScrollBar.vertical: ZmScrollBar {}

                Keys.onPressed: event => {
                    event.accepted = true
                    switch (event.key) {
                    case Qt.Key_Left: root.moveCategorySelection(-1); return
                    case Qt.Key_Right: root.moveCategorySelection(1); return
                    case Qt.Key_Home: root.moveCategorySelection(-Infinity); return
                    case Qt.Key_End: root.moveCategorySelection(Infinity); return
                    case Qt.Key_Down:
                        if (root.currentCategoryIndex < 0)
                            root.moveCategorySelection(1)
                        else
                            root.moveCategoryLine(1)
                        return
                    case Qt.Key_Up:
                        if (!root.moveCategoryLine(-1) && root.searchEnabled)
                            searchField.forceActiveFocus()
                        return
                    case Qt.Key_PageDown: case Qt.Key_PageUp:
                        for (let i = Math.floor(height / root.categoryCellHeight); i > 0; --i)
                            root.moveCategoryLine(event.key === Qt.Key_PageDown ? 1 : -1)
                        return
                    }
                    event.accepted = false
                }

                delegate: Item {
                    id: line

                    required property int index
                    required property var modelData

                    width: grid.cellsWidth
                    height: modelData.heading ? heading.height : root.categoryCellHeight

                    Label {
                        id: heading

                        visible: line.modelData.heading
                        topPadding: line.index > 0 ? Theme.spaceL : 0
                        bottomPadding: Theme.spaceS
                        leftPadding: Theme.spaceXS
                        text: line.modelData.heading
                        color: Theme.mutedText
                        font.weight: Font.DemiBold
                        textFormat: Text.PlainText
                        Accessible.role: Accessible.Heading
                        Accessible.name: text
                    }

                    Repeater {
                        model: line.modelData.items

                        PickerCell {
                            required property int index
                            required property var modelData
                            readonly property int itemIndex: line.modelData.first + index

                            x: index * width
                            width: grid.cellsWidth / grid.columns
                            height: root.categoryCellHeight
                            name: modelData.displayName ?? ""
                            previewSource: root.address(modelData[root.categoryPreviewRole])
                            tooltipSource: root.address(modelData[root.categoryTooltipPreviewRole])
                            tooltipSize: Qt.size(root.categoryTooltipPreviewWidth, root.categoryTooltipPreviewHeight)
                            previewGround: root.categoryPreviewGround
                            previewWidth: root.categoryPreviewWidth
                            previewHeight: root.categoryPreviewHeight
                            padding: root.categoryCellPadding
                            current: root.currentCategoryIndex === line.modelData.categoryIndex
                                     && root.currentCategoryItemIndex === itemIndex
                            gridFocused: grid.activeFocus
                            onChosen: {
                                root.select(line.modelData.categoryIndex, itemIndex)
                                grid.forceActiveFocus(Qt.MouseFocusReason)
                            }
                            onActivated: {
                                root.select(line.modelData.categoryIndex, itemIndex)
                                root.activateCurrentCategoryItem()
                            }
                        }
                    }
                }

                Label {
                    anchors.centerIn: parent
                    width: Math.min(implicitWidth, parent.width)
                    visible: root.groups.length === 0
                    text: root.categoryEmptyText
                    color: Theme.mutedText
                    wrapMode: Text.Wrap
                    textFormat: Text.PlainText
                }
            }
        }
    }

    footer: ZmDialogFooter {
        dialog: root
        onAccepted: root.activateCurrentCategoryItem()
        onRejected: root.reject()

        ZmDialogButton {
            text: qsTr("Cancel")
            DialogButtonBox.buttonRole: DialogButtonBox.RejectRole
        }

        ZmDialogButton {
            id: activateButton

            text: root.activateText
            highlighted: true
            enabled: root.currentCategoryItem !== null
            DialogButtonBox.buttonRole: DialogButtonBox.AcceptRole
        }
    }
}
