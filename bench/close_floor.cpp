#include "bench/close_floor.h"

#include <string>

#include "database/engine.h"
#include "session/session.h"

namespace jxc::bench {

namespace {

void Run(const std::string& script) {
    Conn().EngineInUse().ExecuteScript(script);
}

void InTransaction(const std::string& script) {
    Run("begin;" + script + "commit;");
}

// A condition on a date column.
std::string InNovember(const std::string& column) {
    return column + " >= '2026-11-01' and " + column + " < '2026-12-01'";
}

const std::string kToNovember = " where fInvDate < '2026-12-01'";

std::string Sum(int kind, const std::string& figure) {
    return "sum(case when c.fSetTjType=" + std::to_string(kind) + " then " + figure + " else 0 end),";
}

std::string RebuildScript() {
    const std::string value = "a.fInvSl*a.fInvDj*a.fInvHbDl";
    return "delete from tJXC_CkTj;"
           "insert into tJXC_CkTj (fCpID,fCkName,fQcSl,fQcJe,fRkSl,fRkJe,fCkSl,fCkJe,fCkCb,fDkSl,fPdSl) "
           "select a.fCpID,a.fCkName," +
           Sum(0, "a.fInvSl") + Sum(0, value) + Sum(1, "a.fInvSl") + Sum(1, value) + Sum(2, "a.fInvSl") +
           Sum(2, value) + Sum(2, "a.fInvSl*a.fInvDj2") +
           "sum((case when a.fInvInOut=1 then 1 else -1 end)*(case when c.fSetTjType=3 then a.fInvSl else 0 "
           "end)),"
           "sum(case when c.fSetTjType=4 then a.fInvSl else 0 end) "
           "from tJXC_CkDj02 a left join tJXC_CkDj01 b on b.fInvID=a.fInvID "
           "left join tJXC_InvSet c on c.fSetNo=b.fInvType "
           "where a.fInvDate < '2026-12-01' and b.fInvSHR<>'' group by a.fCpID,a.fCkName order by "
           "a.fCpID,a.fCkName;"
           "update tJXC_CkTj set fKcSl=fQcSl+fRkSl-fCkSl+fDkSl+fPdSl;"
           "update tJXC_CkTj set fKcDj=(fQcJe+fRkJe)/(fQcSl+fRkSl) where fQcSl+fRkSl<>0;"
           "update tJXC_CkTj set fKcDj=b.fCpPrice0 from tJXC_Cp b where b.fCpID=tJXC_CkTj.fCpID and "
           "fQcSl+fRkSl=0;"
           "update tJXC_CkTj set fKcJe=fKcSl*fKcDj;";
}

// An opening document for each of the four warehouses.
std::string OpeningsScript() {
    std::string script = "delete from tJXC_CkDj_Tmp01; delete from tJXC_CkDj_Tmp02;";
    for (int warehouse = 0; warehouse < 4; ++warehouse) {
        const std::string name = "'仓库" + std::to_string(warehouse) + "'",
                          number = "'Q" + std::to_string(warehouse) + "'";
        const std::string key = "(select max(fInvID) from tJXC_CkDj01)+" + std::to_string(warehouse + 1);
        script +=
            "insert into tJXC_CkDj_Tmp01 "
            "(fInvID,fInvType,fHtNo,fInvNo,fInvDate,fKhID,fCkName,fCkName2,fInvHb,"
            "fInvHbDl,fInvMemo,fInvDLR,fInvJBR,fInvShr) values (" +
            key + ",0,''," + number + ",'2026-12-01',0," + name +
            ",'','人民币',1,'自动结转','u','','u');"
            "insert into tJXC_CkDj_Tmp02 (fInvID,fInv1,fInvInOut,fInvNo,fInvDate,fKhID,fCkName,fCpID,fInvSL,"
            "fInvDJ,fInvJE,fInvHb,fInvHbDl,fInvTaxRate,fInvTax,fInvOther1,fInvOther2,fInvDJ2,fInvSL2) "
            "select " +
            key + ",0,1," + number + ",'2026-12-01',0," + name +
            ",fCpID,fKcSl,fKcDj,fKcJe,'人民币',1,0,0,'','',0,0 from tJXC_CkTj where fCkName=" + name +
            " order by fCpID;";
    }
    return script;
}

std::string MoveScript() {
    std::string script;
    for (const std::string part : {"01", "02"})
        script += "update tJXC_CkDj" + part + " set fMonth='2026-11-01'" + kToNovember + ";";
    for (const std::string part : {"01", "02"})
        script += "delete from tJXC_CkDj_Bak" + part + " where " + InNovember("fMonth") + ";";
    for (const std::string part : {"01", "02"})
        script += "insert into tJXC_CkDj_Bak" + part + " select * from tJXC_CkDj" + part + kToNovember +
                  " order by fInvDate,fInvID;";
    script +=
        "update tJXC_CkTj set fMonth='2026-11-01';"
        "delete from tJXC_CkTj_Bak where " +
        InNovember("fMonth") +
        ";"
        "insert into tJXC_CkTj_Bak select * from tJXC_CkTj order by fCpID,fCkName;"
        "update tJXC_CkTj set fMonth='2026-11-01';"
        "delete from tJXC_KhTj_Bak where " +
        InNovember("fMonth") +
        ";"
        "insert into tJXC_KhTj_Bak (fKhID,fCpID,fMonth,fCkSL,fCkJE,fCkCB) "
        "select a.fKhID,a.fCpID,'2026-11-01',sum(a.fInvSL),sum(a.fInvJE*a.fInvHbDl),sum(a.fInvSL*a.fInvDj2) "
        "from tJXC_CkDj02 a left join tJXC_CkDj01 b on b.fInvID=a.fInvID "
        "left join tJXC_InvSet c on c.fSetNo=b.fInvType "
        "where a.fInvDate < '2026-12-01' and c.fSetTjType=2 group by a.fKhID,a.fCpID order by "
        "a.fKhID,a.fCpID;";
    for (const std::string part : {"01", "02"})
        script += "delete from tJXC_CkDj" + part + kToNovember + ";";
    for (const std::string part : {"01", "02"})
        script +=
            "insert into tJXC_CkDj" + part + " select * from tJXC_CkDj_Tmp" + part + " order by fInvID;";
    return script + "update tJXC_InvSys set fSysDate='2026-12-01';";
}

std::string BackScript() {
    std::string script =
        "delete from tJXC_CkDj02 where fInvID in (select fInvID from tJXC_CkDj01 where fInvType=0);"
        "delete from tJXC_CkDj01 where fInvType=0;";
    for (const std::string part : {"01", "02"})
        script += "insert into tJXC_CkDj" + part + " select * from tJXC_CkDj_Bak" + part + " where " +
                  InNovember("fMonth") + " order by fInvID;";
    for (const char* table : {"tJXC_CkDj_Bak01", "tJXC_CkDj_Bak02", "tJXC_CkTj_Bak"})
        script += std::string("delete from ") + table + " where " + InNovember("fMonth") + ";";
    return script + "update tJXC_InvSys set fSysDate='2026-11-01';";
}

// `count` rows, numbered from 0.
std::string Numbers(const std::string& table, int count) {
    return "create temporary table " + table +
           " as with recursive n(i) as (select 0 union all select i+1 from n where i<" +
           std::to_string(count - 1) + ") select i from n;";
}

std::string DayOf(const std::string& number) {
    return session.IsJet() ? "'2026-11-'||substr('0'||(1+" + number + "%30),-2)"
                           : "timestamp '2026-11-01' + (" + number + "%30) * interval '1 day'";
}

} // namespace

void FillMonth(int lines) {
    const int documents = lines / 10;
    std::string script = "insert into tJXC_InvSys (fSysDate,fSysDay) values ('2026-11-01',1);";
    for (const auto& [type, kind] : {std::pair{0, 0}, {1, 1}, {2, 2}, {5, 2}, {3, 3}})
        script += "insert into tJXC_InvSet (fSetNo,fSetTjType,fSetAutoNo) values (" + std::to_string(type) +
                  "," + std::to_string(kind) + ",'YYYYMMDDQCXXX');";
    script += "insert into Moneys (MoneyCode,MoneyType) values ('人民币',1);" + Numbers("products", 20'000) +
              Numbers("documents", documents) + Numbers("places", 10);
    script += "insert into tJXC_Cp (fCpID,fCpCode,fCpPrice0,fCpFlag) select i+1,'P'||i,3.5,0 from products;";
    script +=
        "insert into tJXC_CkDj01 (fInvID,fInvType,fHtNo,fInvNo,fInvDate,fKhID,fKhAdd,fCkName,fCkName2,fInvHb,"
        "fInvHbDl,fInvJE,fInvMemo,fInvDLR,fInvJbr,fInvSHR,fFlag) "
        "select i+2,case i%5 when 0 then 1 when 1 then 2 when 2 then 2 when 3 then 5 else 3 end,'',"
        "'D'||i," +
        DayOf("i") + ",i%5000,'','仓库'||(i%4),'','人民币',1,0,'','u','','u',0 from documents order by i;";
    script += "insert into tJXC_CkDj02 "
              "(fInvID,fInv1,fRowID,fInvInOut,fInvNo,fInvDate,fKhID,fCkName,fCpID,fInvSL,fInvSL2,"
              "fInvDJ,fInvDJ2,fInvJE,fInvHb,fInvHbDl,fInvTaxRate,fInvTax,fInvOther1,fInvOther2) "
              "select d.i+2,0,p.i+1,case when d.i%5=0 then 1 else 2 end,'D'||d.i," +
              DayOf("d.i") +
              ",d.i%5000,'仓库'||(d.i%4),(d.i*7+p.i*13)%20000+1,1+(d.i+p.i)%20,0,"
              "(1005+(d.i*13+p.i*737)%50000)/100.0,3.5,10,'人民币',1,0,0,'','' from documents d cross join "
              "places p "
              "order by d.i,p.i;";
    InTransaction(script);
}

void FillClosedMonths(int months) {
    for (int month = 0; month < months; ++month) {
        const std::string number = std::to_string(1 + month % 12);
        const std::string day =
            "'" + std::to_string(2025 - month / 12) + "-" + (number.size() < 2 ? "0" : "") + number + "-01'";
        const std::string key = std::to_string((month + 1) * 10'000'000);
        std::string script;
        for (const std::string part : {"01", "02"}) {
            const std::string copy = "copy" + part;
            script += "create temporary table " + copy + " as select * from tJXC_CkDj" + part + ";";
            script += "update " + copy + " set fMonth=" + (session.IsJet() ? day : "timestamp " + day) +
                      ",fInvDate=" + (session.IsJet() ? day : "timestamp " + day) + ",fInvID=-fInvID-" + key +
                      ";";
            script +=
                "insert into tJXC_CkDj_Bak" + part + " select * from " + copy + "; drop table " + copy + ";";
        }
        InTransaction(script);
    }
}

void RebuildFloor() {
    InTransaction(RebuildScript());
}

void CloseFloor() {
    InTransaction(RebuildScript());
    InTransaction(OpeningsScript());
    InTransaction(MoveScript());
}

void ReverseFloor() {
    InTransaction(BackScript());
}

} // namespace jxc::bench
