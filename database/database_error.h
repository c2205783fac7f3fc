// What a database refuses. There are three kinds of errors, and no routine takes one for another: a DatabaseError; a
// refusal, which says what a person or a script may not do (ScreenError, GestureRefused, RequestError and the like), also
// a std::runtime_error with a text for people; and a fault of the program, a std::logic_error, whose text is for the log.
#pragma once

#include <stdexcept>

namespace jxc {

// What the database, or the translation of a statement for it, refused. what() is text for people.
class DatabaseError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// The server does not let this user in: the name or the password is wrong, or missing.
class LoginError : public DatabaseError {
  public:
    using DatabaseError::DatabaseError;
};

// The line to the server is lost, or could not be made anew. The engine's own words are nested in it.
class LineLost : public DatabaseError {
  public:
    LineLost() : DatabaseError("与服务器的连接已中断。") {}
};

// The line to the server was lost while a commit was on its way: it may have been done, or not.
class CommitUnknown : public DatabaseError {
  public:
    using DatabaseError::DatabaseError;
};

// An update by row found its row changed or gone since it was read.
class ConflictError : public DatabaseError {
  public:
    using DatabaseError::DatabaseError;
};

} // namespace jxc
