import QtQuick
import KarvexWrapper 1.0

// The `menu` list operations, as QML code uses them.
QmlKaMenuItemData {
    id: root
    objectName: "root"

    property QmlKaMenuItemData first: QmlKaMenuItemData { objectName: "first" }
    property QmlKaMenuSeparatorData second: QmlKaMenuSeparatorData { objectName: "second" }
    property QmlKaMenuItemData third: QmlKaMenuItemData { objectName: "third" }

    function names() {
        let result = []
        for (let i = 0; i < menu.length; ++i)
            result.push(menu[i].objectName)
        return result.join(",")
    }

    // Each step's result, for the test to compare.
    function run() {
        let log = []
        menu.push(first)
        menu.push(second)
        appendSubMenu(third)
        log.push(menu.length + ":" + names())
        menu[1] = third
        log.push(names())
        menu.length = 1
        log.push(names())
        menu = []
        log.push(menu.length)
        return log.join(" | ")
    }
}
