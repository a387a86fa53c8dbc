pragma ComponentBehavior: Bound

import QtQuick

// The menus of the window.
ZmMenuBar {
    id: root

    required property WindowActions actions
    readonly property ActionContext context: actions.context

    ZmMenu {
        title: qsTr("&File")

        ZmMenuItem { action: root.actions.file.newDocument }
        ZmMenuItem { action: root.actions.file.openDocument }
        RecentFilesMenu {
            settings: root.context.settings
            enabled: !root.actions.file.saveInProgress && settings.recentFilePaths.length > 0
            onFileChosen: path => root.context.flow.requestOpenRecent(path)
        }
        ZmMenuSeparator {}
        ZmMenuItem { action: root.actions.file.saveDocument }
        ZmMenuItem { action: root.actions.file.saveDocumentAs }
        ZmMenuSeparator {}
        ZmMenuItem { action: root.actions.file.quitApplication }
    }

    ZmMenu {
        title: qsTr("&Edit")

        ZmMenuItem { action: root.actions.edit.undo }
        ZmMenuItem { action: root.actions.edit.redo }
        ZmMenuSeparator {}
        ZmMenuItem { action: root.actions.edit.cut }
        ZmMenuItem { action: root.actions.edit.copy }
        ZmMenuItem { action: root.actions.edit.paste }
    }

    ZmMenu {
        title: qsTr("&Select")

        ZmMenuItem { action: root.actions.selection.invertRaster }
        ZmMenuItem { action: root.actions.selection.clearRaster }
        ZmMenuSeparator {}
        ZmMenuItem { action: root.actions.selection.rectangle }
        ZmMenuItem { action: root.actions.selection.ellipse }
        ZmMenuItem { action: root.actions.selection.magicWand }
        ZmMenuItem { action: root.actions.selection.polygon }
        ZmMenuSeparator {}
        ZmMenuItem { action: root.actions.selection.extractRasterToLayer }
    }

    ZmMenu {
        title: qsTr("&View")

        ZmMenuItem { action: root.actions.view.unlimitedCanvas }
        ZmMenuItem { action: root.actions.view.canvasClipMode }
        ZmMenuSeparator {}
        ZmMenuItem { action: root.actions.view.documentBounds }
        ZmMenuSeparator {}

        ZmMenu {
            title: qsTr("&Rulers")

            ZmMenuItem { action: root.actions.view.rulerOff }
            ZmMenuItem { action: root.actions.view.rulerTopLeft }
            ZmMenuItem { action: root.actions.view.rulerBottomRight }
        }

        ZmMenu {
            title: qsTr("I&nspector Position")

            ZmMenuItem { action: root.actions.view.inspectorLeft }
            ZmMenuItem { action: root.actions.view.inspectorRight }
        }

        ZmMenu {
            title: qsTr("&Theme")

            ZmMenuItem { action: root.actions.view.themeSystem }
            ZmMenuItem { action: root.actions.view.themeLight }
            ZmMenuItem { action: root.actions.view.themeDark }
        }

        ZmMenuSeparator {}

        LanguageMenu {
            settings: root.context.settings
            onLanguageChosen: language => root.actions.view.chooseLanguage(language)
        }

        ZmMenuSeparator {}
        ZmMenuItem { action: root.actions.view.zoomIn }
        ZmMenuItem { action: root.actions.view.zoomOut }
        ZmMenuItem { action: root.actions.view.zoomToFit }
        ZmMenuItem { action: root.actions.view.zoomToActualSize }
        ZmMenuSeparator {}
        ZmMenuItem { action: root.actions.view.fullScreen }
    }

    ZmMenu {
        title: qsTr("&Layer")

        ZmMenu {
            title: qsTr("&Insert")

            ZmMenuItem {
                action: root.actions.layers.addImage
                text: qsTr("&Image…")
            }
            ZmMenuItem {
                action: root.actions.layers.addText
                text: qsTr("&Text")
            }
            ZmMenuItem {
                action: root.actions.layers.addShape
                text: qsTr("&Shape…")
            }
        }

        ZmMenuItem { action: root.actions.layers.addPaintLayer }
        ZmMenuSeparator {}
        ZmMenuItem { action: root.actions.layers.removeLayer }
        ZmMenuSeparator {}
        ZmMenuItem { action: root.actions.tools.crop }
        ZmMenuItem { action: root.actions.tools.skew }
        ZmMenuSeparator {}
        ZmMenuItem { action: root.actions.layers.moveUp }
        ZmMenuItem { action: root.actions.layers.moveDown }
        ZmMenuSeparator {}
        ZmMenuItem { action: root.actions.layers.rasterize }
        ZmMenuItem { action: root.actions.layers.collapseDown }
    }

    ZmMenu {
        title: qsTr("&Help")

        ZmMenuItem { action: root.actions.help.webSite }
        ZmMenuSeparator {}
        ZmMenuItem { action: root.actions.help.about }
    }

    // Only builds for developers have it.
    Instantiator {
        active: root.context.forDevelopers
        delegate: DebugMenu {
            actions: root.actions
        }
        onObjectAdded: (index, menu) => root.insertMenu(root.count - 1, menu)
        onObjectRemoved: (index, menu) => root.removeMenu(menu)
    }
}
