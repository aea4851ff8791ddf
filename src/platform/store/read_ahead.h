#pragma once
#include "platform/store/sql.h"

#include <vector>

class Connection;

// What is asked next, asked of a server in one round trip: while this lives, the connection answers each of
// these statements once from what it has got here, until something is written, or else to the end, where
// nothing that is written meanwhile touches it. A file is asked as ever. Where one of them fails, each is
// asked by itself, and fails by itself. One at a time.
class ReadAhead {
  public:
    enum Until { Write, End };
    ReadAhead(Connection& store, const std::vector<Sql>& statements, Until until = Write);
    ~ReadAhead();
    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;

  private:
    Connection& store_;
};
