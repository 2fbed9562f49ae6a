import QtQuick
import KarvexWrapper 1.0

// A menu description using every kind of entry, the model included.
Item {
    id: root
    width: 240
    height: 120

    property string lastTriggered: ""
    property bool lastToggled: false
    property alias rowModel: rows

    KaMenuListModel {
        id: rows
    }
    QmlKaMenuItemData {
        id: rowItem
        objectName: "row"
        title: "From the model"
        onTriggered: root.lastTriggered = objectName
    }
    QmlKaMenuSeparatorData {
        id: rowSeparator
        objectName: "rowSeparator"
    }

    Component.onCompleted: {
        rows.appendItem(rowItem)
        rows.appendRow({ "kaMenuListModelItem": rowSeparator })
    }

    Item {
        objectName: "anchorParent"
        x: 20
        y: 20
        width: 80
        height: 30

    Item {
        objectName: "anchor"
        anchors.fill: parent

        QmlKaMenuData.kaMenuListModel: rows
        QmlKaMenuData.style: KaMenuEnum.Circular
        // The linter of Qt 6.4 does not follow list bindings on attached objects.
        // qmllint disable property
        QmlKaMenuData.menu: [
            QmlKaMenuItemData {
                objectName: "copy"
                title: "Copy"
                onTriggered: root.lastTriggered = objectName
            },
            QmlKaMenuItemData {
                objectName: "hidden"
                title: "Hidden"
                visible: false
                menu: [
                    QmlKaMenuItemData { objectName: "hiddenChild"; title: "Hidden child" }
                ]
            },
            QmlKaMenuItemData {
                objectName: "more"
                title: "More"
                menu: [
                    QmlKaMenuItemData {
                        objectName: "child"
                        title: "Child"
                        checkable: true
                        onToggled: function(checked) { root.lastToggled = checked }
                    },
                    QmlKaMenuItemData { objectName: "hiddenLeaf"; title: "Hidden leaf"; visible: false }
                ]
            },
            QmlKaMenuSeparatorData { objectName: "header"; text: "Section" },
            QmlKaMenuSeparatorData { objectName: "nothing"; showSeperatorLine: false },
            QmlKaMenuSeparatorData { objectName: "group"; text: "Group"; group: true },
            QmlKaDiscoverabilityBannerData { objectName: "emptyBanner"; bannerText: "" },
            QmlKaDiscoverabilityBannerData { objectName: "banner"; bannerText: "Try it"; bannerType: KaDiscoverabilityEnum.TipHelp },
            QtObject { objectName: "stranger" }
        ]
        // qmllint enable property
    }
    }
}
