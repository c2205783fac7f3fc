#include "host/company/sample_company.h"

#include "host/company/sample_cards.h"
#include "host/company/sample_people.h"
#include "host/company/sample_products.h"
#include "host/company/sample_warehouses.h"
#include "host/company/table_writer.h"

namespace jxc {

const CompanyHeader kSampleCompany = {
    .fullName = "远帆电脑配件商行",
    .name = "远帆电脑",
    .province = "广东省",
    .city = "深圳市",
    .address = "南山区科苑路66号",
    .postcode = "518057",
    .telephone = "0755-55500001",
    .fax = "0755-55500002",
    .web = "www.yuanfan.example",
    .mail = "office@yuanfan.example",
    .taxNumber = "91440300MA00000000",
    .account = "6200000000000000001",
};

void FillSampleCompany(Connection& connection) {
    TableWriter(connection, "tAccounts").Add({{"compname", "银行存款"}, {"compCode", "1002"}});
    FillSampleCards(connection);
    FillSampleWarehouses(connection);
    FillSampleProducts(connection);
    FillSamplePeople(connection);
}

} // namespace jxc
