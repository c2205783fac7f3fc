// The robot: drives every screen by JSON requests, one object a request, one reply each. A reply is given
// when the program next waits for input, so a click that raises a message box is answered with that box.
//
// Requests: property, refresh, open (between screens; open names an editor of the host); controls, get, set,
// choose, type, paste, click, dblclick, select, menu, key, tab, heading, drop, close (on a screen); answer (in a
// message box). "paste" puts a block of cells into a grid that takes blocks: {"op":"paste","control":"Grid2",
// "value":"A1\t3\nB2\t4"}. A request that does not fit is answered with {"ok":false,"error":...} and changes
// nothing. At the end of the requests all screens close without saving.
//
// A reply has "signal" with the line that the gesture raised beside the work, if it raised one (a code that found
// nothing), and its box has "details" where the engine told the cause of a failure.
#pragma once

#include <iosfwd>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "controls/view.h"
#include "session/lzjxc.h"

namespace jxc {

// Where requests come from, and their replies go.
class RequestSource {
  public:
    virtual ~RequestSource() = default;
    // The next request; nothing at the end. Text that is no JSON object is answered by Reply before the next
    // is read.
    virtual std::optional<nlohmann::json> Next() = 0;
    virtual void Reply(const nlohmann::json& reply) = 0;
};

// One JSON object a line.
class JsonLines : public RequestSource {
  public:
    JsonLines(std::istream& in, std::ostream& out) : in_(in), out_(out) {}
    std::optional<nlohmann::json> Next() override;
    void Reply(const nlohmann::json& reply) override;

  private:
    std::istream& in_;
    std::ostream& out_;
};

class Robot : public View {
  public:
    Robot(lzJxc& control, RequestSource& source) : control_(control), source_(source) {}
    // Serves requests until they end.
    void Run();
    // Every operation that a request may ask for.
    static std::vector<std::string> Operations();

    void RunModal(Screen& screen) override;
    BoxButton ShowBox(const MessageBox& box) override;
    void ShowProgress(const std::string&, int, int) override {}
    void Signal(const std::string& text) override { signal_ = text; }
    void ShowNotice(const std::string& title, const std::string& text) override;
    bool KeepWaiting(int) override { return true; }  // a script waits as long as the engine does
    void OpenAddress(const std::string&) override {} // a script needs no window beside its own
    void DialNumber(const std::string&) override {}
    std::string Clipboard() override { return clipboard_; }
    void SetClipboard(const std::string& text) override { clipboard_ = text; }

  private:
    // Replies to the request before and takes the next; nothing at the end.
    std::optional<nlohmann::json> Await(const char* waiting, const MessageBox* box = nullptr);
    // Runs `serve`; what does not fit becomes the error reply.
    template <typename Serve>
    void Answer(const Serve& serve);
    using HostOperation = void (Robot::*)(const nlohmann::json& request);
    static const std::map<std::string, HostOperation>& HostOperations();
    void ServeHost(const nlohmann::json& request);
    void SetProperty(const nlohmann::json& request);
    void Refresh(const nlohmann::json& request);
    void OpenScreen(const nlohmann::json& request);

    lzJxc& control_;
    RequestSource& source_;
    std::vector<Screen*> screens_;          // open, the current one last
    std::optional<nlohmann::json> pending_; // the reply to be completed at the next wait
    bool ended_ = false;
    std::string signal_; // the line told since the reply before
    std::string clipboard_;
};

} // namespace jxc
