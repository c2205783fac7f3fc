#include "controls/row_formula.h"

#include <cmath>

#include <muParser.h>

namespace jxc {

namespace {

// muParser's own "=" assigns, so all operators are the formula's own.
double Add(double a, double b) {
    return a + b;
}
double Subtract(double a, double b) {
    return a - b;
}
double Multiply(double a, double b) {
    return a * b;
}
double Divide(double a, double b) {
    return a / b;
}
double Power(double a, double b) {
    return std::pow(a, b);
}
double Negative(double a) {
    return -a;
}
double Positive(double a) {
    return a;
}
double Equal(double a, double b) {
    return a == b;
}
double Unequal(double a, double b) {
    return a != b;
}
double Less(double a, double b) {
    return a < b;
}
double LessEqual(double a, double b) {
    return a <= b;
}
double Greater(double a, double b) {
    return a > b;
}
double GreaterEqual(double a, double b) {
    return a >= b;
}
double If(double condition, double then, double otherwise) {
    return condition != 0 ? then : otherwise;
}

void DefineLanguage(mu::Parser& parser) {
    parser.EnableBuiltInOprt(false);
    parser.ClearFun();
    parser.ClearConst();
    parser.DefineNameChars("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_#");
    parser.DefineOprtChars("+-*/^=<>");
    parser.DefineInfixOprt("-", Negative, mu::prINFIX);
    parser.DefineInfixOprt("+", Positive, mu::prINFIX);
    const auto compare = static_cast<unsigned>(mu::prCMP);
    parser.DefineOprt("=", Equal, compare);
    parser.DefineOprt("<>", Unequal, compare);
    parser.DefineOprt("<", Less, compare);
    parser.DefineOprt("<=", LessEqual, compare);
    parser.DefineOprt(">", Greater, compare);
    parser.DefineOprt(">=", GreaterEqual, compare);
    parser.DefineOprt("+", Add, mu::prADD_SUB);
    parser.DefineOprt("-", Subtract, mu::prADD_SUB);
    parser.DefineOprt("*", Multiply, mu::prMUL_DIV);
    parser.DefineOprt("/", Divide, mu::prMUL_DIV);
    parser.DefineOprt("^", Power, mu::prPOW, mu::oaRIGHT);
    for (const char* spelling : {"IF", "If", "iF", "if"})
        parser.DefineFun(spelling, If);
}

// The column of "J#" or "AA#"; 0 for any other name. No grid has columns of more than three letters.
int ColumnOf(const std::string& name) {
    if (name.size() < 2 || name.size() > 4 || name.back() != '#')
        return 0;
    int column = 0;
    for (size_t i = 0; i + 1 < name.size(); ++i) {
        const char c = name[i];
        if (c >= 'A' && c <= 'Z')
            column = column * 26 + (c - 'A' + 1);
        else if (c >= 'a' && c <= 'z')
            column = column * 26 + (c - 'a' + 1);
        else
            return 0;
    }
    return column;
}

} // namespace

struct RowFormula::Compiled {
    mu::Parser parser;
    std::vector<int> reads;
    std::vector<std::unique_ptr<double>> inputs; // the variables' storage, beside `reads`
};

RowFormula::RowFormula(std::string_view text) : compiled_(std::make_unique<Compiled>()) {
    const std::string formula(text);
    try {
        DefineLanguage(compiled_->parser);
        compiled_->parser.SetExpr(formula);
        const mu::varmap_type used =
            compiled_->parser.GetUsedVar(); // a copy: defining a variable empties the parser's own
        for (const auto& [name, unused] : used) {
            const int column = ColumnOf(name);
            if (column == 0)
                throw FormulaError("公式 " + formula + " 有误：不认识 " + name + "。");
            compiled_->inputs.push_back(std::make_unique<double>(0));
            compiled_->reads.push_back(column);
            compiled_->parser.DefineVar(name, compiled_->inputs.back().get());
        }
        int results = 0;
        compiled_->parser.Eval(results);
        if (results != 1)
            throw FormulaError("公式 " + formula + " 有误：只能有一个结果。");
    } catch (const mu::Parser::exception_type& error) {
        throw FormulaError("公式 " + formula + " 有误：第 " + std::to_string(error.GetPos() + 1) +
                           " 个字符处 " + error.GetToken() + "（" + error.GetMsg() + "）。");
    }
}

RowFormula::~RowFormula() = default;
RowFormula::RowFormula(RowFormula&&) noexcept = default;
RowFormula& RowFormula::operator=(RowFormula&&) noexcept = default;

const std::vector<int>& RowFormula::Reads() const {
    return compiled_->reads;
}

double RowFormula::Evaluate(const std::function<double(int)>& cell) const {
    for (size_t i = 0; i < compiled_->reads.size(); ++i)
        *compiled_->inputs[i] = cell(compiled_->reads[i]);
    const double value = compiled_->parser.Eval();
    return std::isfinite(value) ? value : 0;
}

} // namespace jxc
