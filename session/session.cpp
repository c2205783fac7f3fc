#include "session/session.h"

namespace jxc {

Session session;

Connection& Conn() {
    if (!session.Conn || !session.Conn->IsOpen())
        throw DatabaseError("数据库尚未连接。");
    return *session.Conn;
}

} // namespace jxc
