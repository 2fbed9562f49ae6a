import QtQuick
import KarvexWrapper 1.0

// QmlKaMenuData attached to something that is not an item.
Item {
    property QtObject holder: QtObject {
        // qmllint disable property
        QmlKaMenuData.menu: [
            QmlKaMenuItemData { title: "Never shown" }
        ]
        // qmllint enable property
    }
}
