import QtQuick
import Vasker.Platform

// Holds what lies behind a sheet and is out of reach while `covered`.
BackdropItem {
    id: root

    Accessible.role: Accessible.Grouping
    Accessible.ignored: !root.covered
}
