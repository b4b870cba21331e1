#pragma once
// Records every signal of an object, to compare what a report made the
// object emit with a golden list.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QStringList>

#include <algorithm>
#include <memory>
#include <vector>

// Every signal of the object recorded; read back as name(arg,...) with
// strings quoted and JSON compact (keys sorted).
class Emissions
{
public:
    explicit Emissions(QObject *obj)
    {
        const QMetaObject *mo = obj->metaObject();
        for (int i = mo->methodOffset(); i < mo->methodCount(); ++i)
            if (mo->method(i).methodType() == QMetaMethod::Signal)
                m_spies.emplace_back(mo->method(i).name(), std::make_unique<QSignalSpy>(obj, mo->method(i)));
    }
    QStringList all(const QByteArray &only = {}) const
    {
        QStringList out;
        for (const auto &[name, spy] : m_spies)
            for (int e = 0; e < spy->count() && (only.isEmpty() || only == name); ++e) {
                QStringList parts;
                for (const QVariant &v : spy->at(e))
                    parts << (v.userType() == QMetaType::QString ? '"' + v.toString() + '"'
                              : v.userType() == QMetaType::QJsonArray ? QJsonDocument(v.toJsonArray()).toJson(QJsonDocument::Compact)
                              : v.userType() == QMetaType::QJsonObject ? QJsonDocument(v.toJsonObject()).toJson(QJsonDocument::Compact)
                                                                       : v.toString());
                out << name + '(' + parts.join(',') + ')';
            }
        return out;
    }
    bool has(const QByteArray &name) const
    {
        return std::any_of(m_spies.begin(), m_spies.end(), [&](const auto &s) { return s.first == name; });
    }

private:
    std::vector<std::pair<QByteArray, std::unique_ptr<QSignalSpy>>> m_spies;
};
