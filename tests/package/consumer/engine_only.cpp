// A host without a window needs the engine alone.
#include <zkp_grid.h>

#include <ado/connection.h>

#include <cstdio>

int main() {
    auto connection = std::make_shared<zkp::ado::Connection>();
    connection->Open("sqlite:demo.db");
    zkp::ZkpGrid grid;
    grid.setColDataField(0, "POLICYNO");
    grid.Fill(connection, "SELECT POLICYNO FROM POLICIES", zkp::ZKP_SQLStatement);
    grid.refresh();
    std::printf("%g records, the first one %s\n", grid.RecCount(), qPrintable(grid.TextMatrix(1, 0)));
}
