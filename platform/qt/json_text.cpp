#include "platform/qt/json_text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

Json fromQt(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return Json::of(value.toBool());
    case QJsonValue::Double:
        return Json::of(value.toDouble());
    case QJsonValue::String:
        return Json::of(value.toString().toStdString());
    case QJsonValue::Array: {
        Json list = Json::list();
        for (const QJsonValue item : value.toArray())
            list.items.push_back(fromQt(item));
        return list;
    }
    case QJsonValue::Object: {
        Json object = Json::object();
        const QJsonObject members = value.toObject();
        for (auto member = members.begin(); member != members.end(); ++member)
            object.members.push_back({member.key().toStdString(), fromQt(member.value())});
        return object;
    }
    default:
        return {};
    }
}

QJsonValue toQt(const Json& json)
{
    switch (json.kind) {
    case Json::Kind::truth:
        return json.truth;
    case Json::Kind::number:
        return json.number;
    case Json::Kind::text:
        return QString::fromStdString(json.text);
    case Json::Kind::list: {
        QJsonArray list;
        for (const Json& item : json.items)
            list.append(toQt(item));
        return list;
    }
    case Json::Kind::object: {
        QJsonObject object;
        for (const auto& [key, member] : json.members)
            object.insert(QString::fromStdString(key), toQt(member));
        return object;
    }
    case Json::Kind::null:
        break;
    }
    return {};
}

} // namespace

std::optional<Json> QtJsonText::read(std::string_view text)
{
    const QJsonDocument document =
        QJsonDocument::fromJson(QByteArray(text.data(), static_cast<qsizetype>(text.size())));
    if (document.isObject())
        return fromQt(document.object());
    if (document.isArray())
        return fromQt(document.array());
    return std::nullopt;
}

std::string QtJsonText::write(const Json& json)
{
    return QJsonDocument(toQt(json).toObject()).toJson().toStdString();
}
