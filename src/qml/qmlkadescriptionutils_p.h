#pragma once

// Shared by the QML description types, whose setters all store and notify
// only on a change.
namespace QmlKaDescriptionUtils {
template <typename T> bool assign(T& field, const T& value) {
    if (field == value)
        return false;
    field = value;
    return true;
}
} // namespace QmlKaDescriptionUtils
