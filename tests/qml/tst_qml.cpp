// Runs the QML view tests (tst_*.qml in this folder) against the compiled-in documents.
#include <QtQuickTest>
QUICK_TEST_MAIN(qml)
