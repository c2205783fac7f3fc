#include "host/tour.h"

#include <filesystem>
#include <iostream>
#include <unistd.h>

#include "database/server_database.h"
#include "host/check.h"
#include "host/company/create_company.h"
#include "host/company/default_settings.h"
#include "host/company/prepare_database.h"
#include "host/company/sample_company.h"
#include "host/company_address.h"
#include "host/embedding.h"
#include "host/exit_status.h"
#include "robot/scenario.h"
#include "session/company/open_connection.h"
#include "session/session.h"

namespace jxc {

namespace {

const char* const kTour = R"(
say ── 采购入库：总部仓从芯源电子进三种配件 ──
refresh 13 invType=1
choose cboCkName 总部仓
set txtKhSeek G001
key txtKhSeek Enter
choose cboInvMemo #0
type Grid2 1 1 CPU002
type Grid2 1 6 20
type Grid2 1 9 615.00
type Grid2 2 1 MEM002
type Grid2 2 6 50
type Grid2 2 9 170.00
type Grid2 3 1 CPF004
type Grid2 3 6 100
type Grid2 3 9 6.50
table Grid2
value txtSum 21450.00
keep receipt txtNo
click cmdSave
box 入库单：新增 | 入库单：新增：${receipt}，确定？ | OK
box 入库单：新增 | 单据新增完毕。打印本张单据？ | No
click cmdQuit
say 存盘：入库单 ${receipt} 已保存，尚不影响库存。
let receiptId select fInvID from tJXC_CkDj01 where fInvNo='${receipt}'
refresh 13 Action=4 invType=1 oldInvID=${receiptId}
set txtSsSf 5000
click cmdSave
box 单据审核 | ${receipt}：单据审核，系统将同时进行库存数刷新、往来帐处理等操作，确定？ | OK
box 入库单：审核 | ${receipt}：单据审核完毕！ | OK
click cmdQuit
say 审核：库存、成本与应付款已经入帐，即付 5000.00 元。

say ── 销售出库：发给天域数码 ──
refresh 13 invType=2
choose cboCkName 总部仓
set txtKhSeek X001
key txtKhSeek Enter
type Grid2 1 1 CPU002
type Grid2 1 6 8
type Grid2 2 1 MEM002
type Grid2 2 6 16
table Grid2
keep issue txtNo
click cmdSave
box 出库单：新增 | 出库单：新增：${issue}，确定？ | OK
box 出库单：新增 | 单据新增完毕。打印本张单据？ | No
click cmdQuit
let issueId select fInvID from tJXC_CkDj01 where fInvNo='${issue}'
refresh 13 Action=4 invType=2 oldInvID=${issueId}
click cmdSave
box 单据审核 | ${issue}：单据审核，系统将同时进行库存数刷新、往来帐处理等操作，确定？ | OK
box 出库单：审核 | ${issue}：单据审核完毕！ | OK
click cmdQuit
say 出库单 ${issue} 已保存并审核。

say ── 成本核算统计：现有库存、单位成本与金额 ──
refresh 6
table Grid1
click cmdQuit
)";

// A folder of its own for the tour's company, removed with everything in it.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "jxc-tour-XXXXXX").string();
        if (!mkdtemp(name.data()))
            throw std::runtime_error("无法建立临时目录 " + name + "。");
        path_ = name;
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    std::string File(const std::string& name) const { return (path_ / name).string(); }

  private:
    std::filesystem::path path_;
};

bool Tell(const std::string& what, const std::vector<std::string>& wrong) {
    for (const std::string& line : wrong)
        std::cout << what << line << "\n";
    return wrong.empty();
}

int Play(const std::string& company) {
    lzJxc control;
    UseCompany(control, company);
    control.CompName("演示公司");
    control.UserName("王芳");
    control.ZgName("王芳");
    control.myPower("9999999999");
    const auto query = [](const std::string& sql) {
        Connection connection;
        OpenOfSession(connection);
        return connection.Query(sql);
    };
    const auto execute = [](const std::string& sql) {
        Connection connection;
        OpenOfSession(connection);
        connection.Execute(sql);
    };
    Scenario scenario("tour", kTour, query, execute,
                      [](const std::string& line) { std::cout << line << std::endl; });
    if (!Tell("未如预期：", PlayScenario(control, scenario)))
        return kFindings;
    const OpenCompany open(company);
    if (!Tell("帐套检查：", CheckCompany()))
        return kFindings;
    std::cout << "帐套检查：全部相符。" << std::endl;
    return 0;
}

// The tour enters and approves documents: never in the books of somebody's own company, which is not even brought
// up to this program's tables.
void RequireSample(const std::string& company) {
    const OpenCompany open(company, OpenFor::Looking);
    const Rows name = Conn().Query("Select Top 1 CompName From myCompany");
    if (name.Count() == 0 || name.At(0, 0).AsText() != kSampleCompany.name)
        throw std::runtime_error("演示会录入并审核单据，只在样例公司中进行：" + WithoutPassword(company) +
                                 " 不是样例公司。");
}

} // namespace

int PlayTour(const std::string& company) {
    RegisterAllScreens();
    if (!company.empty()) {
        const bool onServer = DialectOf(company) != 0;
        if (onServer ? FindServerDatabase(company).state == ServerDatabase::State::HoldsCompany
                     : std::filesystem::exists(company)) {
            RequireSample(company);
        } else {
            if (onServer)
                PrepareDatabase(company, false);
            CreateCompany(DialectOf(company), company, CompanyKind::Sample);
        }
        return Play(company);
    }
    const TemporaryFolder folder;
    const std::string file = folder.File("sample.db");
    std::cout << "建立演示帐套 " << file << std::endl;
    CreateCompany(0, file, CompanyKind::Sample);
    return Play(file);
}

} // namespace jxc
