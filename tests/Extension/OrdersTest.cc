#include "Extension/ExtensionRun.h"

// Every order in which the callbacks of a notification, its expiry and a second request can come.
// The order of the deliveries, and what each of them holds, follows from a few rules.

namespace orvanta::testing {
namespace {

/// What is asked for, and what becomes of it.
struct World {
  bool buttons, media, icon;
  bool second;  // a second request of the same kind arrives
  bool expiry;
  bool centerGone, downloadFails, donationFails, updateFails;
};

/// The steps of one request that wait for a callback.
enum class Step { registration, download, donation };
struct Waiting {
  int request;
  Step step;
};

/// One delivery: whose handler got what. The contents are named after their requests.
struct Delivered {
  int handler;
  std::string content;
  friend bool operator==(const Delivered&, const Delivered&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Delivered& delivered) {
    return out << delivered.handler << ":" << delivered.content;
  }
};

/// The rules. A step takes the content of the request that arrived last when the step begins; what
/// the pipeline delivers, it took when the registration was done.
class Rules {
 public:
  explicit Rules(const World& of) : world(of) {}

  void arrive(int request) {
    current = request;
    if (!world.buttons) return update(request);
    if (!world.centerGone) waiting.push_back({request, Step::registration});
  }
  void run(std::size_t index) {
    const Waiting done = waiting[index];
    waiting.erase(waiting.begin() + static_cast<std::ptrdiff_t>(index));
    const int request = done.request;
    switch (done.step) {
      case Step::registration:
        return update(request);
      case Step::download:
        attached[taken[request]] = attached[taken[request]] || !world.downloadFails;
        return communicate(request);
      case Step::donation:
        if (world.donationFails) return deliver(request, nameOf(taken[request]));
        if (world.updateFails) deliver(request, nameOf(taken[request]));
        deliver(request,
                world.updateFails ? "nothing" : "updated " + nameOf(communicated[request]));
    }
  }
  void expire() { deliver(current, nameOf(current)); }

  World world;
  std::vector<Waiting> waiting;
  std::vector<Delivered> deliveries;
  int current = 0;

 private:
  void update(int request) {
    taken[request] = current;
    if (!world.media) return communicate(request);
    waiting.push_back({request, Step::download});
  }
  void communicate(int request) {
    communicated[request] = current;
    if (!world.icon) return deliver(request, nameOf(taken[request]));
    waiting.push_back({request, Step::donation});
  }
  void deliver(int handler, std::string content) {
    deliveries.push_back({handler, std::move(content)});
  }
  std::string nameOf(int request) const {
    return "content " + std::to_string(request) + (attached[request] ? " with media" : "");
  }

  int taken[3] = {};
  int communicated[3] = {};
  bool attached[3] = {};
};

/// One order of a world, driven by choices; those that are not made yet are the first possible.
class Order {
 public:
  explicit Order(const World& world) : rules_(world) {
    if (world.centerGone) run_.platform.center.reset();
    if (world.downloadFails) run_.platform.download.error = error("NSURLErrorDomain", -1001);
    if (world.donationFails) run_.platform.donationError = error("IntentsErrorDomain", 1900);
    if (world.updateFails) run_.platform.updateError = error("UNErrorDomain", 1);
  }

  /// Follows the choices, adding to them, and leaves behind how many each step had.
  void follow(std::vector<std::size_t>& choices, std::vector<std::size_t>& widths) {
    arrive(1);
    bool secondIsOut = rules_.world.second;
    bool expiryIsOut = rules_.world.expiry;
    widths.clear();
    while (true) {
      const std::size_t callbacks = rules_.waiting.size();
      ASSERT_EQ(run_.platform.waiting(), callbacks);
      const std::size_t width = callbacks + (secondIsOut ? 1 : 0) + (expiryIsOut ? 1 : 0);
      if (width == 0) break;
      if (choices.size() == widths.size()) choices.push_back(0);
      const std::size_t choice = choices[widths.size()];
      widths.push_back(width);
      if (choice < callbacks) {
        run_.platform.run(choice);
        rules_.run(choice);
      } else if (secondIsOut && choice == callbacks) {
        secondIsOut = false;
        arrive(2);
      } else {
        expiryIsOut = false;
        expired_ = rules_.current;
        run_.extension->serviceExtensionTimeWillExpire();
        rules_.expire();
      }
    }
    EXPECT_EQ(deliveries_, rules_.deliveries) << run_.journal();
    // The plain sentence: a handler is called by the pipeline, once more when the content update
    // fails, and once more when the expiry comes while its request is the last that arrived.
    const World& world = rules_.world;
    const bool isStuck = world.buttons && world.centerGone;
    const bool isUpdated = world.icon && !world.donationFails;
    for (int handler = 1; handler <= (world.second ? 2 : 1); ++handler) {
      EXPECT_EQ(deliveriesTo(handler), (isStuck ? 0U : 1U) + (expired_ == handler ? 1U : 0U) +
                                           (!isStuck && isUpdated && world.updateFails ? 1U : 0U))
          << run_.journal();
    }
    EXPECT_LE(run_.platform.donated.size(), rules_.world.second ? 2U : 1U);
  }

  std::size_t deliveriesTo(int handler) const {
    return static_cast<std::size_t>(
        std::count_if(deliveries_.begin(), deliveries_.end(),
                      [&](const Delivered& delivered) { return delivered.handler == handler; }));
  }

 private:
  void arrive(int request) {
    run_.original.title = "content " + std::to_string(request);
    std::vector<std::string_view> parts;
    if (rules_.world.buttons) parts.push_back(kButtons);
    if (rules_.world.media) parts.push_back(kMedia);
    if (rules_.world.icon) parts.push_back(kIcon);
    run_.platform.download.name = "file" + std::to_string(request);
    rules_.arrive(request);  // first: it may deliver at once
    run_.receive(payloadWith(parts), [this, request](const ExtensionRun::Content& content) {
      std::string name = content == nullptr ? "nothing" : *content->title;
      if (content != nullptr && !content->attachments.empty()) name += " with media";
      if (content != nullptr && content->communication) name.insert(0, "updated ");
      deliveries_.push_back({request, name});
    });
  }

  ExtensionRun run_;
  int expired_ = 0;  // the last request when the expiry came
  Rules rules_;
  std::vector<Delivered> deliveries_;
};

/// Follows every order of a world and returns their number; `twice` those in which the first
/// request's handler was called more than once.
std::size_t explore(const World& world, std::size_t& twice) {
  std::size_t orders = 0;
  std::vector<std::size_t> choices;
  std::vector<std::size_t> widths;
  while (true) {
    Order order(world);
    order.follow(choices, widths);
    if (::testing::Test::HasFailure()) return orders;
    ++orders;
    if (order.deliveriesTo(1) > 1) ++twice;
    choices.resize(widths.size());
    while (!choices.empty() && choices.back() + 1 == widths[choices.size() - 1]) choices.pop_back();
    if (choices.empty()) return orders;
    ++choices.back();
  }
}

TEST(Orders, EveryOrderDeliversWhatTheRulesSay) {
  const LogLevel silent(0);
  std::size_t orders = 0;
  std::size_t twice = 0;
  for (unsigned bits = 0; bits < 512; ++bits) {
    const auto bit = [&](unsigned number) { return (bits >> number & 1U) != 0; };
    const World world{bit(0), bit(1), bit(2), bit(3), bit(4), bit(5), bit(6), bit(7), bit(8)};
    const bool saysNothingNew = (world.centerGone && !world.buttons) ||
                                (world.downloadFails && !world.media) ||
                                (world.donationFails && !world.icon) ||
                                (world.updateFails && (!world.icon || world.donationFails));
    if (!saysNothingNew) orders += explore(world, twice);
    if (HasFailure()) FAIL() << "world " << bits;
  }
  RecordProperty("orders", static_cast<int>(orders));
  RecordProperty("twice", static_cast<int>(twice));
}

TEST(Orders, NoneIsLeftOut) {
  const LogLevel silent(0);
  const struct {
    World world;
    std::size_t orders;
    std::size_t twice;
  } rows[] = {
      // Three callbacks in a row, and the expiry before, between or behind them.
      {{true, true, true, false, true, false, false, false, false}, 4, 4},
      {{true, true, true, false, false, false, false, false, false}, 1, 0},
      {{true, true, true, false, false, false, false, false, true}, 1, 1},
      // And a second request with three of its own: 8! / (3! 4! 1!). The expiry reaches the first
      // request where it comes before the second request.
      {{true, true, true, true, true, false, false, false, false}, 280, 56},
      {{true, true, true, true, false, false, false, false, false}, 35, 0},
  };
  for (const auto& row : rows) {
    std::size_t twice = 0;
    EXPECT_EQ(explore(row.world, twice), row.orders);
    EXPECT_EQ(twice, row.twice);
  }
}

}  // namespace
}  // namespace orvanta::testing
