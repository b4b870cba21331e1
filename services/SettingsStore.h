#pragma once
// CS_Config.ini: the screens' persistent choices, 43 keys in the [setting]
// group, read into and written from one JSON object. Every call opens the
// file afresh (other processes may edit it); nothing is cached.
#include <QJsonObject>
#include <QString>

namespace SettingsStore {

enum class KeyType { Int, String };
struct Key
{
    const char *name;
    KeyType type;
};
// The 43 keys, in the order they are read and written.
extern const Key kKeys[43];

// "<application dir>/config/CS_Config.ini".
QString filePath();
// Import step: a CS_Config.ini dropped in /userdata replaces the active one once
// (atomically: a failed copy keeps the previous file).
void importFromUserdata();
// Creates a missing settings file from the factory defaults compiled into the
// executable. True when it had to (and could) create it.
bool ensureFile();
// Adds every key present in the file to obj (never removes a property).
void read(QJsonObject &obj);
// Stores each of the 43 keys present in data; other keys are ignored. No gating, no sync.
void write(const QJsonObject &data);

bool isFirst();                 // "/setting/First", true when absent
void setFirst(bool first);
QString obsPath();              // "/setting/OBSPath", "" when absent
void setObsPath(const QString &path);
int openLogSwitch();            // "/setting/openLog", 0 when absent

} // namespace SettingsStore
