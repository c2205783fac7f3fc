#include "host/window/recent_companies.h"

#include <QFileInfo>

#include "host/company_address.h"
#include "host/window/sample_company_file.h"
#include "view/qt_text.h"

namespace jxc {

namespace {

constexpr int kMost = 8;

bool IsSample(const QString& company) {
    const QFileInfo file(company), sample(Q(SampleCompanyFile()));
    return file.absoluteFilePath() == sample.absoluteFilePath() ||
           (file.exists() && file.canonicalFilePath() == sample.canonicalFilePath());
}

} // namespace

// A program of an earlier version may have noted the sample.
QStringList RecentCompanies::List() const {
    QStringList companies = memory_.value("recent").toStringList();
    companies.removeIf(IsSample);
    return companies;
}

std::string RecentCompanies::Last() const {
    return S(List().value(0));
}

void RecentCompanies::Remember(const std::string& company) {
    const QString address =
        DialectOf(company) == 0 ? QFileInfo(Q(company)).absoluteFilePath() : Q(WithoutPassword(company));
    if (DialectOf(company) == 0 && IsSample(address))
        return;
    QStringList companies = List();
    companies.removeAll(address);
    companies.prepend(address);
    memory_.setValue("recent", companies.mid(0, kMost));
}

} // namespace jxc
