#include "host/company/sample_cards.h"

#include <span>

#include "host/company/table_writer.h"

namespace jxc {

namespace {

enum CardKind { kAny = 0, kSupplier = 1, kDealer = 2, kConsignee = 3 };

struct Card {
    std::string_view code;
    CardKind kind;
    std::string_view company, contact, telephone, mobile, address, postcode, mailbox;
};
// clang-format off
constexpr Card kCards[] = {
    {"G001", kSupplier, "深圳市芯源电子有限公司", "林志强", "0755-55500101", "19900000101", "深圳市福田区华强路18号", "518031", "sales@xinyuan.example"},
    {"G002", kSupplier, "深圳市宏图板卡有限公司", "陈雅文", "0755-55500102", "19900000102", "深圳市宝安区新安路66号", "518101", "order@hongtu.example"},
    {"G003", kSupplier, "上海恒储数据设备有限公司", "沈国梁", "021-55500103", "19900000103", "上海市徐汇区漕溪路120号", "200030", "sales@hengchu.example"},
    {"G004", kSupplier, "东莞明视显示器厂", "黄伟明", "0769-55500104", "19900000104", "东莞市厚街镇工业路9号", "523960", "mingshi@mingshi.example"},
    {"G005", kSupplier, "佛山力盾机箱电源厂", "梁永康", "0757-55500105", "19900000105", "佛山市顺德区容桂大道31号", "528303", "lidun@lidun.example"},
    {"G006", kSupplier, "杭州联速网络设备有限公司", "方慧", "0571-55500106", "19900000106", "杭州市滨江区江南路200号", "310051", "net@liansu.example"},
    {"G007", kSupplier, "苏州灵键外设有限公司", "顾晓峰", "0512-55500107", "19900000107", "苏州市工业园区星湖街8号", "215021", "lingjian@lingjian.example"},
    {"G008", kSupplier, "珠海墨彩打印耗材有限公司", "何丽娟", "0756-55500108", "19900000108", "珠海市香洲区前山路77号", "519070", "mocai@mocai.example"},
    {"X001", kDealer, "长沙天域数码经营部", "彭建国", "0731-55500201", "19900000201", "长沙市芙蓉区朝阳路15号", "410011", "tianyu@tianyu.example"},
    {"X002", kDealer, "武汉众鑫电脑有限公司", "熊斌", "027-55500202", "19900000202", "武汉市洪山区珞喻路88号", "430070", "zhongxin@zhongxin.example"},
    {"X003", kDealer, "南昌博雅科技有限公司", "万小燕", "0791-55500203", "19900000203", "南昌市东湖区阳明路42号", "330006", "boya@boya.example"},
    {"X004", kDealer, "桂林极速网吧连锁", "韦东", "0773-55500204", "19900000204", "桂林市象山区中山路101号", "541002", "jisu@jisu.example"},
    {"X005", kDealer, "广州启明学校", "邓老师", "020-55500205", "19900000205", "广州市天河区育才路5号", "510620", "qiming@qiming.example"},
    {"X006", kDealer, "贵阳百汇办公设备有限公司", "罗成", "0851-55500206", "19900000206", "贵阳市云岩区延安路60号", "550001", "baihui@baihui.example"},
    {"X007", kDealer, "南宁新时空电脑城二号店", "农志华", "0771-55500207", "19900000207", "南宁市青秀区星光路28号", "530022", "xinshikong@xsk.example"},
    {"X008", kDealer, "惠州德盛设计工作室", "钟敏", "0752-55500208", "19900000208", "惠州市惠城区麦地路12号", "516001", "desheng@desheng.example"},
    {"D001", kConsignee, "汕头海湾电脑行", "蔡锦荣", "0754-55500301", "19900000301", "汕头市龙湖区金砂路90号", "515041", "haiwan@haiwan.example"},
    {"D002", kConsignee, "湛江南港数码店", "许志远", "0759-55500302", "19900000302", "湛江市赤坎区海滨路33号", "524037", "nangang@nangang.example"},
    {"D003", kConsignee, "柳州银河科技商店", "覃小莉", "0772-55500303", "19900000303", "柳州市城中区文昌路21号", "545001", "yinhe@yinhe.example"},
    {"K001", kAny, "中山同行互助电脑部", "冯国栋", "0760-55500401", "19900000401", "中山市石岐区民生路7号", "528400", "tonghang@tonghang.example"},
};
// clang-format on

struct DeliveryAddress {
    std::string_view cardCode, address;
};
constexpr DeliveryAddress kDeliveryAddresses[] = {
    {"G001", "深圳市龙岗区布吉货运站3号仓"},
    {"X001", "长沙市芙蓉区朝阳路15号"},
    {"X001", "长沙市雨花区物流园B区7栋"},
    {"X002", "武汉市洪山区珞喻路88号"},
    {"X004", "桂林市七星区分店"},
    {"X004", "桂林市象山区中山路101号"},
    {"X005", "广州市天河区育才路5号教学楼"},
};

} // namespace

void FillSampleCards(Connection& connection) {
    TableWriter cards(connection, "cards"), addresses(connection, "tJXC_KhAdd");
    for (const Card& card : kCards) {
        const std::string_view mailDomain = card.mailbox.substr(card.mailbox.find('@') + 1);
        cards.Add({{"fID", SampleCardByCode(card.code).fID},
                   {"CompCode", card.code},
                   {"CompName", card.company},
                   {"name", card.contact},
                   {"telphone", card.telephone},
                   {"homephone", ""},
                   {"handphone", card.mobile},
                   {"fax", card.telephone},
                   {"E_mail", card.mailbox},
                   {"HomeEmail", ""},
                   {"http", "www." + std::string(mailDomain)},
                   {"HomeHttp", ""},
                   {"CompAdd", card.address},
                   {"postcode", card.postcode},
                   {"fType0", int{card.kind}}});
    }
    for (const DeliveryAddress& delivery : kDeliveryAddresses)
        addresses.Add({{"fKhID", SampleCardByCode(delivery.cardCode).fID}, {"fKhAdd", delivery.address}});
}

SampleCard SampleCardByCode(std::string_view compCode) {
    int fID = kFirstKey;
    for (const Card& card : kCards) {
        if (card.code == compCode)
            return {fID, card.company};
        ++fID;
    }
    throw std::out_of_range("no sample card " + std::string(compCode));
}

} // namespace jxc
