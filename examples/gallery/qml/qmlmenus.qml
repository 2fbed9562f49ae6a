import QtQuick
import KarvexWrapper 1.0

// A button whose menu is described here and shown as a native menu. The page
// sets the colours and texts from the current theme and language.
Rectangle {
    id: root

    property color buttonColor: "#5b5fc7"
    property color buttonTextColor: "white"
    property color focusColor: "black"
    property string buttonText: "Open menu"
    property string lastChoice: ""
    property string choiceText: ""
    property bool mirrored: false

    LayoutMirroring.enabled: mirrored
    LayoutMirroring.childrenInherit: true

    color: "transparent"
    implicitWidth: 360
    implicitHeight: 56

    KaMenuListModel {
        id: recent
    }
    QmlKaMenuItemData {
        id: recentReport
        objectName: "recentReport"
        title: "Quarterly report"
        subText: "Opened yesterday"
        leftIcon: "qrc:/Resources/meetings-bold.svg"
        onTriggered: root.lastChoice = title
    }
    QmlKaMenuItemData {
        id: recentNotes
        objectName: "recentNotes"
        title: "Meeting notes"
        onTriggered: root.lastChoice = title
    }
    Component.onCompleted: {
        recent.appendItem(recentReport)
        recent.appendItem(recentNotes)
    }

    Rectangle {
        id: button
        objectName: "menuButton"
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: label.implicitWidth + 32
        height: 32
        radius: 4
        color: root.buttonColor
        border.width: activeFocus ? 2 : 0
        border.color: root.focusColor
        activeFocusOnTab: true
        focus: true

        Accessible.role: Accessible.Button
        Accessible.name: root.buttonText
        Accessible.onPressAction: button.QmlKaMenuData.doPopup()
        Keys.onSpacePressed: button.QmlKaMenuData.doPopup()
        Keys.onReturnPressed: button.QmlKaMenuData.doPopup()

        Text {
            id: label
            anchors.centerIn: parent
            text: root.buttonText
            color: root.buttonTextColor
            font.pixelSize: 14
        }
        MouseArea {
            anchors.fill: parent
            onClicked: button.QmlKaMenuData.doPopup()
        }

        QmlKaMenuData.alignment: KaPopupEnum.Bottom
        QmlKaMenuData.kaMenuListModel: recent
        // The linter of Qt 6.4 does not follow list bindings on attached objects.
        // qmllint disable property
        QmlKaMenuData.menu: [
            QmlKaMenuItemData {
                objectName: "newDocument"
                title: "New document"
                leftIcon: "qrc:/Resources/chat-filled.svg"
                onTriggered: root.lastChoice = title
            },
            QmlKaMenuItemData {
                objectName: "share"
                title: "Share"
                badgeText: "3"
                menu: [
                    QmlKaMenuItemData { objectName: "shareLink"; title: "Copy link"; onTriggered: root.lastChoice = title },
                    QmlKaMenuItemData { objectName: "shareMail"; title: "Send by mail"; onTriggered: root.lastChoice = title }
                ]
            },
            QmlKaMenuItemData {
                objectName: "pin"
                title: "Pin to top"
                checkable: true
                onToggled: function(checked) { root.lastChoice = checked ? "Pinned" : "Unpinned" }
            },
            QmlKaDiscoverabilityBannerData {
                bannerText: "Menus can now be described in QML."
                bannerType: KaDiscoverabilityEnum.NewFeature
            },
            QmlKaMenuSeparatorData { objectName: "recentHeader"; text: "Recent" }
        ]
        // qmllint enable property
    }

    Text {
        anchors.left: button.right
        anchors.leftMargin: 16
        anchors.verticalCenter: button.verticalCenter
        text: root.lastChoice === "" ? "" : root.choiceText.arg(root.lastChoice)
        color: root.focusColor
        font.pixelSize: 13
    }
}
