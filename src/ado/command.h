#pragma once

#include "ado/connection.h"

namespace zkp::ado {

/// A statement text, possibly of several statements, and the connection that it runs on.
class Command {
public:
    QString CommandText;
    ConnectionPtr ActiveConnection;
};

using CommandPtr = std::shared_ptr<Command>;

} // namespace zkp::ado
