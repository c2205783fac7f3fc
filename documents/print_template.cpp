#include "documents/print_template.h"

#include <algorithm>
#include <map>

#include "base/text.h"
#include "database/recordset.h"
#include "documents/document_data.h"
#include "session/dialect.h"
#include "session/lookups/book.h"
#include "session/printing/stored_templates.h"
#include "session/session.h"

namespace jxc {

namespace {

using Columns = std::vector<std::pair<std::string, std::string>>;

// The captions under which the dictionary has the columns of such a document.
Recordset ColumnRows(const TypeRow& type) {
    const std::string name = type.IsStocktake() ? "FieldName_1" : "FieldName_0";
    return {Conn(), "select " + name + ",FieldName,fieldID from tJXC_rptListDetail Where " + name +
                        "<>'' Order by fieldID"};
}

std::string LinesStatement(const TemplateRequest& request) {
    return "Select a.fInvSl,a.fInvSl2,a.fInvDj,a.fInvJe," +
           std::string(request.type->IsStocktake() ? "a.fInvSl+a.fInvSl2 as fInvSl9," : "") +
           "a.fInvTaxRate as fInvTaxRate,a.fInvTax as fInvTax,a.fInvOther1,a.fInvOther2,"
           " b.fCpCode,b.fCpName+'/'+b.fCpGG as fCpName,b.fCpUnit"
           " From " +
           BookStem(request.type->fSetNo, request.closed) + "02 a Left Join tJxc_Cp b On a.fCpID=b.fCpID" +
           " Where a.fInvNo=" + InQuotes(request.number) +
           " And fInv1=0 And a.fInvID=" + std::to_string(request.key) + " Order By a.fRowID";
}

// How many decimals a column's figures have; -1 for texts.
int DecimalsOf(const std::string& field) {
    static const std::vector<std::string> quantities = {"fInvSl", "fInvSl2", "fInvSl9"};
    static const std::vector<std::string> amounts = {"fInvJe", "fInvTax"};
    const auto among = [&](const std::vector<std::string>& fields) {
        return std::ranges::any_of(fields, [&](const std::string& one) { return EqualsNoCase(one, field); });
    };
    return among(quantities)                    ? session.DeciSl
           : among(amounts)                     ? kAmountDecimals
           : EqualsNoCase(field, "fInvDj")      ? session.DeciDj
           : EqualsNoCase(field, "fInvTaxRate") ? kTaxRateDecimals
                                                : -1;
}

std::string CellText(const Value& value, int decimals) {
    return decimals < 0 || value.IsNull() ? value.AsText() : FormatFixed(value.AsDouble(), decimals);
}

// One text a column and row; a column that lines do not have stays empty.
std::vector<std::vector<std::string>> LinesOf(Recordset& row, const Columns& columns) {
    std::map<std::string, size_t> places;
    for (size_t field = 0; field < row.FieldCount(); ++field)
        places.emplace(LowerCase(row.FieldName(field)), field);
    std::vector<std::vector<std::string>> lines;
    for (; !row.AtEnd(); row.MoveNext()) {
        std::vector<std::string>& line = lines.emplace_back();
        for (const auto& [caption, field] : columns) {
            const auto place = places.find(LowerCase(field));
            line.push_back(place == places.end() ? "" : CellText(row[place->second], DecimalsOf(field)));
        }
    }
    return lines;
}

// The columns that people see at the screen.
std::vector<PrintedColumn> ShownColumns(const TemplateRequest& request, const TemplatePrintJob& job,
                                        const std::vector<int>& places) {
    std::vector<PrintedColumn> shown;
    for (size_t at = 0; at < places.size(); ++at) {
        const auto& [key, field] = job.columns[at];
        const bool onScreen = places[at] >= 1 && places[at] <= request.shape->ColumnCount() &&
                              !request.shape->Column(places[at]).hidden;
        if (!onScreen || field.empty())
            continue;
        PrintedColumn column{key.substr(2, key.size() - 4), request.shape->Column(places[at]).width,
                             DecimalsOf(field) >= 0};
        for (size_t line = 0; column.figure && line < job.lines.size(); ++line)
            column.longest = std::max(column.longest, static_cast<int>(job.lines[line][at].size()));
        shown.push_back(std::move(column));
    }
    return shown;
}

} // namespace

std::optional<TemplatePrintJob> TemplateJob(TemplateRequest request) {
    TemplatePrintJob job;
    job.typeName = request.title;
    job.number = request.number;
    job.type = request.type->fSetNo;
    job.mode = request.mode;
    std::vector<int> places; // of the entry grid
    for (Recordset row = ColumnRows(*request.type); !row.AtEnd(); row.MoveNext()) {
        job.columns.emplace_back("<<" + row[size_t{0}].AsText() + ">>", row["FieldName"].AsText());
        places.push_back(static_cast<int>(row["fieldID"].AsLong()));
    }
    Recordset lines(Conn(), LinesStatement(request));
    if (lines.AtEnd())
        return std::nullopt;
    job.lines = LinesOf(lines, job.columns);
    job.fields = std::move(request.fields);
    job.further = std::move(request.further);
    job.own = StoredTemplate(job.type);
    job.defaultPaper = DefaultPaper(job.type);
    job.defaultOn = [type = *request.type, captions = std::move(request.captions),
                     columns = ShownColumns(request, job, places)](const std::string& paper) {
        return DefaultTemplate(type, paper, captions, columns);
    };
    job.layout = job.own ? *job.own : job.defaultOn(job.defaultPaper);
    return job;
}

} // namespace jxc
