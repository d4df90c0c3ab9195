// The records' JSON, as read from the phone app's data: any bytes decode to a whole record or an
// error, and a decoded record written and read again is the same record.
#include "model/records.h"

#include "fuzzsupport.h"

#include <QJsonArray>
#include <QJsonDocument>

using fuzzsupport::fail;

namespace {

QJsonValue parse(const QByteArray &text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (document.isObject())
        return document.object();
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue();
}

template<typename T> void roundTrip(const QJsonValue &json)
{
    const Decoded<T> first = recordjson::decode<T>(json);
    if (!first.ok()) {
        if (first.error().path.isEmpty() && json.isObject())
            fail("an error in an object that names no key",
                 QJsonDocument(json.toObject()).toJson(QJsonDocument::Compact));
        return;
    }
    const QByteArray written =
        QJsonDocument(recordjson::encode(first.value())).toJson(QJsonDocument::Compact);
    const Decoded<T> second = recordjson::decode<T>(parse(written));
    if (!second.ok())
        fail("a written record that does not read back", written);
    const QByteArray rewritten =
        QJsonDocument(recordjson::encode(second.value())).toJson(QJsonDocument::Compact);
    if (rewritten != written)
        fail("a record that changes when written and read again", written + " / " + rewritten);
    if constexpr (std::equality_comparable<T>) {
        if (!(second.value() == first.value()))
            fail("a record not equal to itself read back", written);
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    fuzzsupport::initialize(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QJsonValue json = parse(fuzzsupport::bytes(data, size));
    roundTrip<HostConfiguration>(json);
    roundTrip<Host>(json);
    roundTrip<Project>(json);
    roundTrip<ProjectIcon>(json);
    roundTrip<Session>(json);
    return 0;
}
