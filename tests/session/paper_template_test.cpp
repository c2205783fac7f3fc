// Templates of printed documents as texts, and amounts in capital figures.
#include <gtest/gtest.h>

#include "base/capital_amount.h"
#include "session/printing/html_pages.h"
#include "session/printing/paper_template.h"

namespace jxc::test {

namespace {

TemplatePrintJob Job(const std::string& layout) {
    TemplatePrintJob job;
    job.fields = {"<单号>", "RK<1>", "备注", "a & b", "<Address>", "Main St", "<金额合计>", "-10.50"};
    job.columns = {{"<<编码>>", "fCpCode"}, {"<<数量>>", "fInvSl"}};
    job.lines = {{"A\"1", "1.50"}, {"<b>", "2.25"}};
    job.typeName = "入库单";
    job.layout = layout;
    return job;
}

std::string Body(const std::string& layout) {
    const std::string page = TemplatePage(Job("<!--paper A4 10 10 10 10-->" + layout));
    const size_t begin = page.find("<body>\n") + 7;
    return page.substr(begin, page.find("</body>") - begin);
}

std::string Refusal(const std::string& layout) {
    try {
        static_cast<void>(TemplatePage(Job(layout)));
    } catch (const TemplateError& error) {
        return error.what();
    }
    return "";
}

} // namespace

TEST(Template, ReplacesKeysByTextOnly) {
    EXPECT_EQ(
        Body("<!--header--><b><单号></b> <备注> <Address><address>x</address><!--row--><<序号>>:<<编码>>;"),
        "<b>RK&lt;1&gt;</b> a &amp; b Main St<address>x</address>1:A&quot;1;2:&lt;b&gt;;");
    EXPECT_EQ(Body("<!--row--><<数量>>,<!--total--><合计 数量> <大写 金额合计> 1 < 2"),
              "1.50,2.25,3.75 负壹拾元伍角整 1 < 2");
}

TEST(Template, TellsWhatIsWrongWithIt) {
    const std::string paper = "<!--paper A5 landscape 8 10 8 10-->";
    EXPECT_EQ(Refusal("<!--row-->x"), "打印模板没有说明纸张，例如 <!--paper A4 15 15 15 15-->。");
    EXPECT_EQ(Refusal("<!--paper B9--><!--row-->x"),
              "打印模板的纸张“B9”未知，可用的是 A4、A5、241x140、241x279 和 80。");
    EXPECT_EQ(Refusal("<!--paper A4 1 2 x 4--><!--row-->x"),
              "打印模板的页边距须是四个 0 至 60 之间的毫米数：上 右 下 左。");
    EXPECT_EQ(Refusal(paper + "<!--header-->x"), "打印模板没有产品行，即 <!--row--> 后面的内容。");
    EXPECT_EQ(Refusal(paper + "<!--row-->x<!--row-->y"), "打印模板中的标记“row”出现了两次。");
    EXPECT_EQ(Refusal(paper + "<!--row-->x<!--"), "打印模板中的标记“<!--”没有结束。");
    EXPECT_EQ(Refusal(paper + "<!--header--><没有><!--row-->x"), "打印模板使用了未知的字段“<没有>”。");
    EXPECT_EQ(Refusal(paper + "<!--row--><<没有>>"), "打印模板使用了未知的字段“<<没有>>”。");
    EXPECT_EQ(Refusal(paper + "<!--header--><<编码>><!--row-->x"), "打印模板使用了未知的字段“<<编码>>”。");
    EXPECT_EQ(Refusal(paper + "<!--row-->x<!--total--><合计 没有>"),
              "打印模板使用了未知的字段“<合计 没有>”。");
    EXPECT_EQ(Refusal(paper + "<!--header--><img src='barcode:没有'><!--row-->x"),
              "打印模板使用了未知的字段“<没有>”。");
}

TEST(Template, OpensNothingOutside) {
    const std::string paper = "<!--paper A5--><!--row-->";
    EXPECT_EQ(Refusal(paper + "<IMG width=1 SRC = \"/etc/passwd\">"),
              "打印模板要求打开“/etc/passwd”：图片只能是 logo、barcode:字段 或 qrcode:字段。");
    EXPECT_EQ(Refusal(paper + "<img src=logo><img\nsrc=http://x/y.png"),
              "打印模板要求打开“http://x/y.png”：图片只能是 logo、barcode:字段 或 qrcode:字段。");
    for (const char* hostile : {"<script>x</script>", "<LINK href=x>", "<p style=\"background: URL(x)\">",
                                "<iframe src=x>", "<a href='javascript:x'>"})
        EXPECT_NE(Refusal(paper + hostile).find("模板不得打开其它文件或程序"), std::string::npos) << hostile;
    EXPECT_NE(Refusal("<!--paper A5--><style>@import 'x'</style><!--row-->x"), "");
    EXPECT_NE(Refusal(paper + std::string(2'000'000, '<')), std::string(1, 'x')); // ends, however long
}

TEST(CapitalFigures, AreReadAsOnACheque) {
    const std::vector<std::pair<double, std::string>> amounts = {
        {0, "零元整"},
        {0.05, "伍分"},
        {0.5, "伍角整"},
        {1, "壹元整"},
        {10, "壹拾元整"},
        {101, "壹佰零壹元整"},
        {1010.1, "壹仟零壹拾元壹角整"},
        {1234.05, "壹仟贰佰叁拾肆元零伍分"},
        {10000, "壹万元整"},
        {10001, "壹万零壹元整"},
        {100010000, "壹亿零壹万元整"},
        {100000001, "壹亿零壹元整"},
        {20050300.45, "贰仟零伍万零叁佰元肆角伍分"},
        {999999999999.99, "玖仟玖佰玖拾玖亿玖仟玖佰玖拾玖万玖仟玖佰玖拾玖元玖角玖分"},
        {-3.2, "负叁元贰角整"},
        {1e12, ""}};
    for (const auto& [amount, words] : amounts)
        EXPECT_EQ(CapitalAmount(amount), words) << amount;
}

} // namespace jxc::test
