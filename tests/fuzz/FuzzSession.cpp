// Whatever the bytes of a session are, what is read of them is within its bounds and is read the
// same once it has been written.
#include "host/Places.h"
#include "host/Session.h"

#include <QSet>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

void Demand(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    const Session session = Session::FromBytes(bytes);
    Demand(session.files.size() <= Session::kMostFiles);
    Demand(session.front >= 0 && session.front <= std::max<qsizetype>(0, session.files.size() - 1));
    QSet<QString> paths;
    for (const SessionFile& file : session.files) {
        Demand(places::CanBeFile(file.path) && !paths.contains(file.path));
        Demand(file.encoding >= -1 && file.encoding <= 11);
        Demand(file.caretLine >= 0 && file.firstVisible >= 0);
        paths.insert(file.path);
    }
    Demand(Session::FromBytes(session.ToBytes()) == session);
    return 0;
}
