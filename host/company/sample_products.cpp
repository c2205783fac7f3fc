#include "host/company/sample_products.h"

#include <array>

#include "host/company/sample_cards.h"
#include "host/company/sample_warehouses.h"
#include "host/company/table_writer.h"

namespace jxc {

namespace {

struct Product {
    std::string_view code, name, specification, unit;
    std::array<double, 4> prices; // cost, wholesale, consignment, retail
    double stockMin, stockMax;
    std::string_view location, category, origin;
    std::string_view supplier; // a card's code; none for what is assembled here
    bool stopped = false;
};
// clang-format off
constexpr Product kProducts[] = {
    {"CPU001", "处理器 双核", "2核4线程 3.7GHz", "颗", {410, 450, 475, 529}, 5, 40, "A-01", "处理器", "深圳", "G001"},
    {"CPU002", "处理器 四核", "4核8线程 3.3GHz", "颗", {620, 680, 715, 789}, 10, 60, "A-01", "处理器", "深圳", "G001"},
    {"CPU003", "处理器 六核", "6核12线程 2.5GHz", "颗", {890, 965, 1010, 1099}, 10, 60, "A-01", "处理器", "深圳", "G001"},
    {"CPU004", "处理器 八核", "8核16线程 3.4GHz", "颗", {1480, 1590, 1660, 1799}, 5, 30, "A-01", "处理器", "深圳", "G001"},
    {"CPU005", "处理器 十二核", "12核20线程 3.6GHz", "颗", {2180, 2330, 2420, 2599}, 2, 15, "A-01", "处理器", "深圳", "G001"},
    {"CPF001", "处理器散热器", "单塔四热管 12cm风扇", "个", {62, 75, 82, 99}, 10, 80, "A-02", "散热", "佛山", "G005"},
    {"CPF002", "下压式散热器", "铜芯 9cm风扇", "个", {24, 30, 33, 42}, 20, 120, "A-02", "散热", "佛山", "G005"},
    {"CPF003", "一体水冷散热器", "240mm 双风扇", "套", {285, 320, 338, 379}, 3, 20, "A-02", "散热", "佛山", "G005"},
    {"CPF004", "导热硅脂", "4g 针管装", "支", {6.5, 8.5, 9.2, 13}, 30, 300, "A-02", "散热", "佛山", "G005"},
    {"MB001", "主板 入门型", "M-ATX DDR4 双插槽", "块", {365, 399, 418, 459}, 8, 50, "A-03", "主板", "深圳", "G002"},
    {"MB002", "主板 办公型", "M-ATX DDR4 四插槽", "块", {455, 495, 518, 569}, 10, 60, "A-03", "主板", "深圳", "G002"},
    {"MB003", "主板 游戏型", "ATX DDR5 WiFi", "块", {915, 985, 1030, 1129}, 5, 30, "A-03", "主板", "深圳", "G002"},
    {"MB004", "主板 工作站型", "E-ATX DDR5 双网口", "块", {1890, 2020, 2100, 2280}, 1, 8, "A-03", "主板", "深圳", "G002"},
    {"MB005", "主板 迷你型", "ITX DDR4 WiFi", "块", {685, 740, 772, 849}, 3, 15, "A-03", "主板", "深圳", "G002"},
    {"MEM001", "内存条 8G", "DDR4 3200", "条", {92, 105, 112, 129}, 30, 200, "A-04", "内存", "深圳", "G001"},
    {"MEM002", "内存条 16G", "DDR4 3200", "条", {172, 192, 203, 229}, 30, 200, "A-04", "内存", "深圳", "G001"},
    {"MEM003", "内存条 16G", "DDR5 5600", "条", {268, 295, 310, 345}, 15, 100, "A-04", "内存", "深圳", "G001"},
    {"MEM004", "内存条 32G", "DDR5 6000", "条", {515, 560, 588, 649}, 6, 50, "A-04", "内存", "深圳", "G001"},
    {"MEM005", "笔记本内存条 16G", "DDR4 3200 SODIMM", "条", {168, 188, 199, 225}, 10, 60, "A-04", "内存", "深圳", "G001"},
    {"SSD001", "固态硬盘 256G", "SATA 2.5寸", "块", {118, 132, 140, 159}, 20, 120, "A-05", "硬盘", "上海", "G003"},
    {"SSD002", "固态硬盘 512G", "M.2 NVMe", "块", {212, 235, 248, 279}, 20, 150, "A-05", "硬盘", "上海", "G003"},
    {"SSD003", "固态硬盘 1T", "M.2 NVMe", "块", {375, 410, 432, 479}, 15, 100, "A-05", "硬盘", "上海", "G003"},
    {"SSD004", "固态硬盘 2T", "M.2 NVMe", "块", {745, 805, 842, 919}, 5, 40, "A-05", "硬盘", "上海", "G003"},
    {"HDD001", "机械硬盘 1T", "SATA 3.5寸 7200转", "块", {268, 292, 306, 339}, 10, 80, "A-05", "硬盘", "上海", "G003"},
    {"HDD002", "机械硬盘 4T", "SATA 3.5寸 5400转", "块", {525, 568, 594, 649}, 5, 40, "A-05", "硬盘", "上海", "G003"},
    {"VGA001", "显卡 4G", "GDDR6 单风扇", "块", {735, 795, 830, 899}, 5, 30, "A-06", "显卡", "深圳", "G002"},
    {"VGA002", "显卡 8G", "GDDR6 双风扇", "块", {1580, 1690, 1760, 1899}, 5, 30, "A-06", "显卡", "深圳", "G002"},
    {"VGA003", "显卡 12G", "GDDR6 三风扇", "块", {2240, 2390, 2480, 2669}, 3, 20, "A-06", "显卡", "深圳", "G002"},
    {"VGA004", "显卡 16G", "GDDR6X 三风扇", "块", {4380, 4650, 4810, 5149}, 1, 10, "A-06", "显卡", "深圳", "G002"},
    {"LCD001", "显示器 22寸", "1080P 75Hz", "台", {415, 455, 478, 529}, 5, 40, "B-01", "显示器", "东莞", "G004"},
    {"LCD002", "显示器 24寸", "1080P 100Hz", "台", {525, 572, 600, 659}, 10, 60, "B-01", "显示器", "东莞", "G004"},
    {"LCD003", "显示器 27寸", "2K 165Hz", "台", {985, 1060, 1108, 1199}, 5, 40, "B-01", "显示器", "东莞", "G004"},
    {"LCD004", "显示器 32寸", "4K 60Hz", "台", {1620, 1740, 1810, 1959}, 2, 15, "B-01", "显示器", "东莞", "G004"},
    {"LCD005", "显示器支架", "单臂 夹桌式", "个", {78, 92, 99, 119}, 5, 50, "B-01", "显示器", "东莞", "G004"},
    {"BOX001", "机箱 办公型", "M-ATX 黑色", "个", {88, 102, 110, 129}, 10, 60, "B-02", "机箱", "佛山", "G005"},
    {"BOX002", "机箱 游戏型", "ATX 侧透 四风扇", "个", {185, 212, 226, 259}, 8, 40, "B-02", "机箱", "佛山", "G005"},
    {"BOX003", "机箱 迷你型", "ITX 白色", "个", {152, 175, 187, 215}, 3, 20, "B-02", "机箱", "佛山", "G005"},
    {"PWR001", "电源 300W", "额定300W 静音", "个", {96, 110, 118, 139}, 10, 60, "B-02", "电源", "佛山", "G005"},
    {"PWR002", "电源 500W", "额定500W 铜牌", "个", {175, 198, 210, 239}, 10, 60, "B-02", "电源", "佛山", "G005"},
    {"PWR003", "电源 750W", "额定750W 金牌 模组", "个", {418, 460, 484, 539}, 4, 25, "B-02", "电源", "佛山", "G005"},
    {"KB001", "有线键盘", "104键 USB", "个", {26, 33, 36, 45}, 30, 200, "B-03", "外设", "苏州", "G007"},
    {"KB002", "机械键盘", "87键 红轴", "个", {145, 168, 180, 209}, 8, 60, "B-03", "外设", "苏州", "G007"},
    {"KB003", "键鼠套装", "无线 2.4G", "套", {58, 69, 75, 89}, 20, 150, "B-03", "外设", "苏州", "G007"},
    {"MS001", "有线鼠标", "光学 1000DPI", "个", {14, 18.5, 20.5, 27}, 40, 300, "B-03", "外设", "苏州", "G007"},
    {"MS002", "无线鼠标", "2.4G 静音", "个", {32, 40, 44, 55}, 30, 200, "B-03", "外设", "苏州", "G007"},
    {"CAM001", "摄像头", "1080P 带麦克风", "个", {75, 88, 95, 115}, 5, 50, "B-03", "外设", "苏州", "G007"},
    {"SPK001", "音箱", "2.0 USB供电", "对", {42, 51, 56, 69}, 8, 60, "B-03", "外设", "苏州", "G007"},
    {"NET001", "路由器", "双频 1200M", "台", {88, 102, 110, 129}, 10, 80, "C-01", "网络", "杭州", "G006"},
    {"NET002", "路由器", "双频 3000M 千兆", "台", {178, 202, 215, 249}, 8, 60, "C-01", "网络", "杭州", "G006"},
    {"NET003", "交换机 8口", "千兆 桌面", "台", {92, 106, 114, 135}, 8, 60, "C-01", "网络", "杭州", "G006"},
    {"NET004", "交换机 24口", "千兆 机架", "台", {415, 456, 480, 535}, 2, 20, "C-01", "网络", "杭州", "G006"},
    {"NET005", "无线网卡", "USB 双频", "个", {36, 44, 48, 59}, 10, 100, "C-01", "网络", "杭州", "G006"},
    {"CAB001", "网线 超五类", "成品 2米", "条", {3.2, 4.5, 5, 8}, 50, 500, "C-02", "线材", "杭州", "G006"},
    {"CAB002", "网线 六类", "305米 箱装", "箱", {465, 510, 536, 598}, 2, 20, "C-02", "线材", "杭州", "G006"},
    {"CAB003", "高清视频线", "2.0版 1.5米", "条", {9.8, 13, 14.5, 20}, 30, 300, "C-02", "线材", "杭州", "G006"},
    {"CAB004", "串口硬盘线", "SATA3 0.5米", "条", {2.6, 3.8, 4.2, 6.5}, 50, 500, "C-02", "线材", "杭州", "G006"},
    {"PRT001", "激光打印机", "黑白 A4 双面", "台", {865, 935, 978, 1069}, 2, 15, "C-03", "打印", "珠海", "G008"},
    {"PRT002", "硒鼓", "黑色 1500页", "支", {48, 58, 63, 79}, 20, 150, "C-03", "打印", "珠海", "G008"},
    {"PRT003", "复印纸", "A4 70g 500张", "包", {16.8, 19.5, 21, 25}, 50, 500, "C-03", "打印", "珠海", "G008"},
    {"PRT004", "墨水 四色", "100ml 4瓶装", "套", {35, 43, 47, 59}, 10, 100, "C-03", "打印", "珠海", "G008"},
    {"PC001", "组装电脑 办公型", "四核 8G 256G", "台", {1557.5, 1760, 1860, 2080}, 2, 20, "B-04", "整机", "", ""},
    {"PC002", "组装电脑 游戏型", "八核 32G 1T 8G显卡", "台", {5774, 6250, 6530, 7080}, 1, 8, "B-04", "整机", "", ""},
    {"OLD001", "光盘刻录机", "DVD SATA", "台", {68, 79, 85, 99}, 0, 0, "C-03", "外设", "上海", "G003", true},
};
// clang-format on

struct KitPart {
    std::string_view product;
    double quantity;
    std::string_view note = "";
};
struct Kit {
    std::string_view code, name, note, product;
    std::array<KitPart, 9> parts; // unused ones at the end have no product
};
constexpr Kit kKits[] = {
    {"ZZ001",
     "组装电脑 办公型",
     "主机一套，含键鼠，不含显示器",
     "PC001",
     {{{"CPU002", 1},
       {"CPF002", 1},
       {"CPF004", 1},
       {"MB002", 1},
       {"MEM001", 1},
       {"SSD001", 1},
       {"BOX001", 1},
       {"PWR001", 1},
       {"KB003", 1, "随机附送"}}}},
    {"ZZ002",
     "组装电脑 游戏型",
     "主机一套，不含外设",
     "PC002",
     {{{"CPU004", 1},
       {"CPF003", 1},
       {"MB003", 1},
       {"MEM003", 2, "双通道"},
       {"SSD003", 1},
       {"VGA002", 1},
       {"BOX002", 1},
       {"PWR003", 1}}}},
};

int ProductID(std::string_view code) {
    int fCpID = kFirstKey;
    for (const Product& product : kProducts) {
        if (product.code == code)
            return fCpID;
        ++fCpID;
    }
    throw std::out_of_range("no sample product " + std::string(code));
}

// A 13-digit code of the range that shops give out themselves, with its check digit.
std::string ShopBarCode(int fCpID) {
    std::string digits = std::to_string(200000000000 + fCpID);
    int sum = 0;
    for (size_t i = 0; i < digits.size(); ++i)
        sum += (digits[i] - '0') * (i % 2 == 0 ? 1 : 3);
    return digits + std::to_string((10 - sum % 10) % 10);
}

void FillProducts(Connection& connection) {
    TableWriter products(connection, "tJXC_Cp");
    int fCpID = kFirstKey;
    for (const Product& product : kProducts) {
        const SampleCard supplier =
            product.supplier.empty() ? SampleCard{0, ""} : SampleCardByCode(product.supplier);
        // Shelf A, where the small parts of high value lie, stands in the head-office warehouse.
        const bool onShelfA = product.location.starts_with("A-");
        products.Add({{"fCpID", fCpID},
                      {"fCpCode", product.code},
                      {"fCpName", product.name},
                      {"fCpGG", product.specification},
                      {"fCpUnit", product.unit},
                      {"fCpBarCode", ShopBarCode(fCpID)},
                      {"fCpPrice0", product.prices[0]},
                      {"fCpPrice1", product.prices[1]},
                      {"fCpPrice2", product.prices[2]},
                      {"fCpPrice3", product.prices[3]},
                      {"fCpSlMin", product.stockMin},
                      {"fCpSlMax", product.stockMax},
                      {"fCkName", onShelfA ? kHeadOfficeWarehouse : ""},
                      {"fCpCw", product.location},
                      {"fCpZy", product.category},
                      {"fCpCd", product.origin},
                      {"fKhName", supplier.compName},
                      {"fKhID", supplier.fID},
                      {"fCpPicture", ""},
                      {"fCpFlag", product.stopped ? 1 : 0}});
        ++fCpID;
    }
}

// The entries of a product field's code list: what the products hold, each once, in the products' order.
void FillCodeList(Connection& connection, std::string_view field, std::string_view Product::*value) {
    TableWriter entries(connection, "briefDetail");
    std::vector<std::string_view> names;
    for (const Product& product : kProducts) {
        const std::string_view name = product.*value;
        if (name.empty() || std::find(names.begin(), names.end(), name) != names.end())
            continue;
        names.push_back(name);
        const std::string code = std::to_string(100 + names.size()).substr(1); // 01, 02 ...
        entries.Add({{"briefType", field}, {"BriefCode", code}, {"BriefName", name}});
    }
}

void FillKits(Connection& connection) {
    TableWriter kits(connection, "tJXC_CpTj01"), parts(connection, "tJXC_CpTj02");
    int fTjID = kFirstKey;
    for (const Kit& kit : kKits) {
        double cost = 0;
        int fRowID = 0;
        for (const KitPart& part : kit.parts) {
            if (part.product.empty())
                break;
            const int fCpPjID = ProductID(part.product);
            cost += part.quantity * kProducts[fCpPjID - kFirstKey].prices[0];
            parts.Add({{"fTjID", fTjID},
                       {"fRowID", ++fRowID},
                       {"fCpPjID", fCpPjID},
                       {"fCpPjSL", part.quantity},
                       {"fCpPjMemo", part.note}});
        }
        kits.Add({{"fTjID", fTjID},
                  {"fTjCode", kit.code},
                  {"fTjName", kit.name},
                  {"fTjMemo", kit.note},
                  {"fTjJe", cost},
                  {"fCpID", ProductID(kit.product)},
                  {"fTjFlag", 0}});
        ++fTjID;
    }
}

} // namespace

void FillSampleProducts(Connection& connection) {
    FillProducts(connection);
    FillCodeList(connection, "fCpCw", &Product::location);
    FillCodeList(connection, "fCpZy", &Product::category);
    FillCodeList(connection, "fCpCd", &Product::origin);
    FillKits(connection);
}

} // namespace jxc
