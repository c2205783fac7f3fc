#include "bench/company_pair.h"

#include <cmath>
#include <cstdio>
#include <filesystem>

#include <unistd.h>

#include "bench/history.h"
#include "database/engine.h"
#include "host/company/create_company.h"
#include "session/company/open_connection.h"
#include "tests/support/test_server.h"

namespace jxc::bench {

namespace {

std::string AddressOf(const Options& options, EngineKind kind, const std::string& name) {
    if (kind == EngineKind::Sqlite)
        return options.folder + "/" + name + ".db";
    return test::AddressOnServer(name);
}

std::string NewName() {
    static int made = 0;
    return "jxc_bench_" + std::to_string(getpid()) + "_" + std::to_string(++made);
}

void Open(Connection& connection, EngineKind kind, const std::string& address) {
    OpenConnection(kind == EngineKind::Postgres, connection, address, "", "", "");
}

// Amounts are added up in another order of steps, so their last bits may differ.
bool Same(const Value& a, const Value& b) {
    if (a.IsNull() || b.IsNull() || a.IsText() || b.IsText())
        return a.IsNull() == b.IsNull() && a.AsText() == b.AsText();
    const double larger = std::max(std::fabs(a.AsDouble()), std::fabs(b.AsDouble()));
    return std::fabs(a.AsDouble() - b.AsDouble()) <= larger * 1e-9;
}

std::string FirstDifference(const Rows& a, const Rows& b) {
    if (a.Count() != b.Count())
        return std::to_string(a.Count()) + " and " + std::to_string(b.Count()) + " rows";
    for (size_t i = 0; i < a.cells.size(); ++i)
        if (!Same(a.cells[i], b.cells[i]))
            return a.names[i % a.names.size()] + " of row " + std::to_string(i / a.names.size()) + ": " +
                   a.cells[i].AsText() + " and " + b.cells[i].AsText();
    return "";
}

} // namespace

CompanyPair::CompanyPair(const Options& options, EngineKind kind, int documents)
    : options_(options), kind_(kind), systemName_(NewName()), floorName_(NewName()),
      system_(AddressOf(options, kind, systemName_)), floor_(AddressOf(options, kind, floorName_)) {
    try {
        if (kind == EngineKind::Postgres)
            test::OnServer("create database " + systemName_ + " template template0 encoding 'UTF8'");
        CreateCompany(kind == EngineKind::Postgres, system_, CompanyKind::Sample);
        Connection company;
        Open(company, kind, system_);
        company.Execute("Update tJXC_InvSys Set fSysAuto1=1");
        if (!options.trail)
            company.EngineInUse().ExecuteScript("drop table tJXC_Audit");
        trade_ = ReadTrade(company);
        if (documents > 0)
            FillHistory(company, kind == EngineKind::Postgres, trade_, documents);
        company.Close();
        Copy();
    } catch (...) {
        Remove();
        throw;
    }
}

CompanyPair::~CompanyPair() {
    Remove();
}

// What was written to make the companies goes to disk now and not while they are measured.
void CompanyPair::Copy() const {
    if (kind_ == EngineKind::Sqlite) {
        std::filesystem::copy_file(system_, floor_);
        sync();
        return;
    }
    test::OnServer("create database " + floorName_ + " template " + systemName_);
    try {
        test::OnServer("checkpoint");
    } catch (const DatabaseError& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
}

void CompanyPair::Remove() const {
    try {
        for (const std::string* name : {&systemName_, &floorName_}) {
            if (kind_ == EngineKind::Postgres)
                test::OnServer("drop database if exists " + *name + " with (force)");
            else
                for (const char* ending : {"", "-wal", "-shm"})
                    std::filesystem::remove(AddressOf(options_, kind_, *name) + ending);
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
}

std::string CompanyPair::Difference() const {
    Connection system, floor;
    Open(system, kind_, system_);
    Open(floor, kind_, floor_);
    const std::string since = "'" + IsoText(FirstDay()).substr(0, 4) + IsoText(FirstDay()).substr(5, 2) + "'";
    for (const std::string& sql : {
             "Select * From tJXC_CkDj01 Where fInvNo>=" + since + " Order By fInvID",
             "Select * From tJXC_CkDj02 Where fInvNo>=" + since + " Order By fInvID,fRowID",
             std::string("Select * From tJXC_CkTj Order By fCkName,fCpID"),
             std::string("Select * From tJXC_CkTj_tmp Order By fCpID"),
             "Select * From tJXC_CpGys Where fInvNo>=" + since + " Order By fInvNo,fCpID",
             "Select * From tAccountDetail Where fAcntNo>=" + since + " Order By fAcntNo",
         }) {
        const std::string difference = FirstDifference(system.Query(sql), floor.Query(sql));
        if (!difference.empty())
            return sql + ": " + difference;
    }
    return "";
}

} // namespace jxc::bench
