#include "tests/support/recorder.h"

#include "database/database_error.h"
#include "session/session.h"

namespace jxc::test {

Recorder::Recorder(size_t failing) {
    Conn().SetObserver([this, failing](std::string_view sql) {
        sent.emplace_back(sql);
        if (sent.size() == failing)
            throw DatabaseError("fault");
    });
}

Recorder::~Recorder() {
    if (session.Conn)
        session.Conn->SetObserver(nullptr);
}

} // namespace jxc::test
