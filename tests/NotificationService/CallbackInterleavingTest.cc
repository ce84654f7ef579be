#include "NotificationService/ExtensionRun.h"
#include "support/LogLevel.h"

// Explores every order of the callbacks of a notification, expiries and a second request. A few
// rules predict what is registered and delivered, in which order and with which content.

namespace orvanta::testing {
namespace {

/// The enrichments that a request asks for.
struct Kind {
  bool buttons, media, icon;
  friend bool operator==(const Kind&, const Kind&) = default;
};

/// The two requests, the number of expiries and the faults.
struct World {
  Kind first, second;
  int expiries;
  bool centerGone = false, downloadFails = false, donationFails = false, updateFails = false;

  const Kind& of(int request) const { return request == 1 ? first : second; }
};

/// The identifier of a request's category.
std::string categoryOf(int request) { return "offer" + std::to_string(request); }

/// The steps of one request that wait for a callback.
enum class Step { registration, download, donation };
struct Waiting {
  int request;
  Step step;
};

/// One delivery: the handler, the content and the number of registrations before it. Contents are
/// named after their requests.
struct Delivered {
  int handler;
  std::string content;
  std::size_t registrations;
  friend bool operator==(const Delivered&, const Delivered&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Delivered& delivered) {
    return out << delivered.handler << ":" << delivered.content << " after "
               << delivered.registrations;
  }
};

/// The rules. A request decides which of its steps run. A step reads the content of the request
/// that is the last when the step begins. The pipeline delivers the content that was the best
/// attempt when the registration ended. A registration keeps the earlier categories.
class Rules {
 public:
  explicit Rules(const World& explored) : world(explored) {}

  void arrive(int request) {
    current = request;
    if (!world.of(request).buttons) return update(request);
    if (!world.centerGone) waiting.push_back({request, Step::registration});
  }
  void run(std::size_t index) {
    const Waiting done = waiting[index];
    waiting.erase(waiting.begin() + static_cast<std::ptrdiff_t>(index));
    const int request = done.request;
    switch (done.step) {
      case Step::registration:
        for (const std::string& each :
             {std::string("OrvantaCarousel"), std::string("OrvantaGeneral"), categoryOf(request)}) {
          if (registered.find(each) == std::string::npos) registered += " " + each;
        }
        registrations.push_back(registered);
        return update(request);
      case Step::download:
        if (world.of(taken_[request]).media && !world.downloadFails)
          attached_[taken_[request]] = true;
        return communicate(request);
      case Step::donation:
        if (world.donationFails) return deliver(request, nameOf(taken_[request]));
        if (world.updateFails) deliver(request, nameOf(taken_[request]));
        deliver(request,
                world.updateFails ? "nothing" : "updated " + nameOf(communicated_[request]));
    }
  }
  void expire() { deliver(current, nameOf(current)); }

  World world;
  std::vector<Waiting> waiting;
  std::string registered = "older";
  std::vector<std::string> registrations;  // the registered categories after each registration
  std::vector<Delivered> deliveries;
  int current = 0;

 private:
  void update(int request) {
    taken_[request] = current;
    if (!world.of(request).media) return communicate(request);
    waiting.push_back({request, Step::download});
  }
  void communicate(int request) {
    communicated_[request] = current;
    if (!world.of(request).icon) return deliver(request, nameOf(taken_[request]));
    if (!world.of(current).icon) return deliver(request, nameOf(current));
    waiting.push_back({request, Step::donation});
  }
  void deliver(int handler, std::string content) {
    deliveries.push_back({handler, std::move(content), registrations.size()});
  }
  std::string nameOf(int request) const {
    return "content " + std::to_string(request) + (attached_[request] ? " with media" : "");
  }

  int taken_[3] = {};
  int communicated_[3] = {};
  bool attached_[3] = {};
};

/// Runs one order of a world by a list of choices; takes the first one where the list ends.
class Order {
 public:
  explicit Order(const World& world) : rules_(world) {
    center_->registered.insert({"older", {}});
    if (world.centerGone) run_.platform.center.reset();
    if (world.downloadFails) run_.platform.download.error = error("NSURLErrorDomain", -1001);
    if (world.donationFails) run_.platform.donationError = error("IntentsErrorDomain", 1900);
    if (world.updateFails) run_.platform.updateError = error("UNErrorDomain", 1);
  }

  /// Follows the choices and extends them; `widths` receives the number of choices at each step.
  void follow(std::vector<std::size_t>& choices, std::vector<std::size_t>& widths) {
    arrive(1);
    bool secondIsOut = true;
    int expiriesOut = rules_.world.expiries;
    widths.clear();
    while (true) {
      const std::size_t callbacks = rules_.waiting.size();
      ASSERT_EQ(run_.platform.waiting(), callbacks) << run_.journal();
      ASSERT_EQ(registrations(), rules_.registrations) << run_.journal();
      ASSERT_EQ(deliveries_, rules_.deliveries) << run_.journal();
      const std::size_t width = callbacks + (secondIsOut ? 1 : 0) + (expiriesOut > 0 ? 1 : 0);
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
        --expiriesOut;
        ++expired_[rules_.current];
        run_.extension->serviceExtensionTimeWillExpire();
        rules_.expire();
      }
    }
    // A handler is called by the pipeline, again when the content update fails, and again for each
    // expiry while its request is the last that arrived.
    const World& world = rules_.world;
    for (const int handler : {1, 2}) {
      const bool isStuck = world.of(handler).buttons && world.centerGone;
      const bool isUpdated = world.of(handler).icon && !world.donationFails;
      EXPECT_EQ(deliveriesTo(handler), (isStuck ? 0U : 1U) + expired_[handler] +
                                           (!isStuck && isUpdated && world.updateFails ? 1U : 0U))
          << run_.journal();
    }
    EXPECT_LE(run_.platform.donated.size(), 2U);
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
    const Kind& kind = rules_.world.of(request);
    if (kind.buttons) parts.push_back(kButtons);
    if (kind.media) parts.push_back(kMedia);
    if (kind.icon) parts.push_back(kIcon);
    std::string payload = payloadWith(parts);
    payload.replace(payload.find("offer"), 5, categoryOf(request));
    run_.platform.download.name = "file" + std::to_string(request);
    rules_.arrive(request);  // first, since it may deliver immediately
    run_.receive(payload, [this, request](const ExtensionRun::Content& content) {
      std::string name = content == nullptr ? "nothing" : *content->title;
      if (content != nullptr && !content->attachments.empty()) name += " with media";
      if (content != nullptr && content->communication) name.insert(0, "updated ");
      deliveries_.push_back({request, name, center_->written.size()});
    });
  }

  /// The identifiers in each written set.
  std::vector<std::string> registrations() const {
    std::vector<std::string> sets;
    for (const UNNotificationCategorySet& set : center_->written) {
      std::string& identifiers = sets.emplace_back();
      for (const auto& each : set)
        identifiers += (identifiers.empty() ? "" : " ") + each.identifier;
    }
    return sets;
  }

  ExtensionRun run_;
  const std::shared_ptr<FakePlatform::Center> center_ = run_.platform.center;
  std::size_t expired_[3] = {};  // expiries by the request that was the last
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

TEST(CallbackInterleaving, EveryOrderFollowsTheRules) {
  const LogLevel silent(0);
  std::size_t orders = 0;
  std::size_t twice = 0;
  for (unsigned bits = 0; bits < 1024; ++bits) {
    const auto bit = [&](unsigned number) { return (bits >> number & 1U) != 0; };
    const Kind first{bit(0), bit(1), bit(2)};
    const Kind second{bit(3), bit(4), bit(5)};
    // Faults and second expiries are combined only with requests of one kind, to limit the number.
    const bool isFaulty = bits >> 6U != 0;
    const int expiries = first == second && !isFaulty ? 2 : 1;
    const World world{first, second, expiries, bit(6), bit(7), bit(8), bit(9)};
    const bool saysNothingNew = (isFaulty && first != second) ||
                                (world.downloadFails && !first.media) ||
                                (world.donationFails && !first.icon) ||
                                (world.updateFails && (!first.icon || world.donationFails));
    if (!saysNothingNew) orders += explore(world, twice);
    if (HasFailure()) FAIL() << "world " << bits;
  }
  RecordProperty("orders", static_cast<int>(orders));
  RecordProperty("twice", static_cast<int>(twice));
}

TEST(CallbackInterleaving, ExploresEveryOrder) {
  const LogLevel silent(0);
  const Kind full{true, true, true};
  const Kind plain{};
  const struct {
    World world;
    std::size_t orders;
    std::size_t twice;
  } rows[] = {
      // Three callbacks of each: 7! / (3! 4!), then 8! / (3! 4! 1!) and 9! / (3! 4! 2!). An expiry
      // reaches the first request where it comes before the second request.
      {{full, full, 0}, 35, 0},
      {{full, full, 1}, 280, 56},
      {{full, full, 2}, 1260, 420},
      {{.first = full, .second = full, .expiries = 0, .updateFails = true}, 35, 35},
      // After the plain one, the first request waits for no donation: 4 + 4 + 5 + 5.
      {{full, plain, 1}, 18, 10},
      {{plain, full, 1}, 5, 1},
  };
  for (const auto& row : rows) {
    std::size_t twice = 0;
    EXPECT_EQ(explore(row.world, twice), row.orders);
    EXPECT_EQ(twice, row.twice);
  }
}

}  // namespace
}  // namespace orvanta::testing
