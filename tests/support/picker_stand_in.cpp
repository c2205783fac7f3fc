#include "tests/support/picker_stand_in.h"

namespace jxc::test {

namespace {

struct Picker : Screen {
    explicit Picker(PickerStandIn& told) : Screen("frmCp"), told(told) {
        AddTextProperty("CpCode", told.CpCode);
        AddTextProperty("CpName", told.CpName);
        AddTextProperty("CpBarCode", told.CpBarCode);
        AddNumberProperty("CpNoEdit", noEdit);
    }
    void Open() override {
        ++told.opened;
        session.SelectedProductID = told.picks;
        Close();
    }

    PickerStandIn& told;
    int noEdit = 0;
};

} // namespace

PickerStandIn::PickerStandIn(std::int32_t picks) : picks(picks) {
    RegisterScreen("frmCp", [this] { return std::make_unique<Picker>(*this); });
}

PickerStandIn::~PickerStandIn() {
    RegisterScreen("frmCp", {});
}

} // namespace jxc::test
