#include <algorithm>
#include <memory>
#include <random>

#include "Core/Simulation/Net.h"
#include "Core/Simulation/Port.h"
#include "Tests/Core/Simulation/NetModel.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

constexpr int kTimes = 4;

/// One arrangement of ports and nets, built as real objects and in the model alike.
class Twin {
public:
    explicit Twin(std::uint32_t seed) : random_(seed) {}

    int below(std::size_t limit) { return static_cast<int>(random_() % limit); }
    bool oneIn(std::size_t count) { return below(count) == 0; }
    std::string letters(std::size_t width) {
        std::string text;
        const bool mostlyZ = !oneIn(3);
        for (std::size_t i = 0; i < width; ++i) text += mostlyZ && !oneIn(4) ? 'Z' : "LHUZX"[below(5)];
        return text;
    }

    int addNet(std::size_t width) {
        nets_.push_back(std::make_unique<Net>(std::to_string(nets_.size()), width));
        model_.nets.push_back({width});
        return static_cast<int>(nets_.size()) - 1;
    }
    int addPort(char direction, std::size_t width) {
        const Direction real = direction == 'I'   ? Direction::Input
                               : direction == 'O' ? Direction::Output
                                                  : Direction::Inout;
        ports_.push_back(std::make_unique<Port>(width, real, std::to_string(ports_.size())));
        model_.ports.push_back({direction, width});
        if (oneIn(3)) {
            ports_.back()->ztrOff();
            model_.ports.back().ztr = false;
        }
        return static_cast<int>(ports_.size()) - 1;
    }
    std::size_t widthOf(int net) const { return model_.nets[static_cast<std::size_t>(net)].width; }

    std::size_t portWidth(int port) const { return model_.ports[static_cast<std::size_t>(port)].width; }

    void attach(int port, int net, int side) {
        netAt(net).addPort(&portAt(port), side);
        model_.attach(port, net, side);
    }
    /// On as many bits, anywhere in the net, as the port has; now and then one of them twice.
    void attachSomewhere(int port, int net, int side) {
        const std::size_t size = portAt(port).width();
        std::vector<int> bits(widthOf(net));
        for (std::size_t i = 0; i < bits.size(); ++i) bits[i] = static_cast<int>(i);
        std::shuffle(bits.begin(), bits.end(), random_);
        bits.resize(size);
        if (oneIn(4)) bits.back() = bits.front();
        std::string expression;
        for (const int bit : bits) expression = std::to_string(bit) + (expression.empty() ? "" : ";") + expression;
        specs_.push_back(std::make_unique<PinSpec>(expression));
        netAt(net).addPort(&portAt(port), specs_.back().get(), side);
        model_.attach(port, net, side, bits);
    }

    void set(int port, const std::string& value, int time) {
        portAt(port).set(Value(value), time);
        model_.set(port, value, time);
    }

    void expectEqual() const {
        for (int time = -1; time <= kTimes; ++time) {
            for (std::size_t i = 0; i < nets_.size(); ++i) {
                ASSERT_EQ(nets_[i]->get(time), model_.readNet(static_cast<int>(i), time)) << "net " << i << "@" << time;
            }
            for (std::size_t i = 0; i < ports_.size(); ++i) {
                ASSERT_EQ(ports_[i]->get(time), model_.readPort(static_cast<int>(i), time))
                    << "port " << i << "@" << time;
            }
        }
    }

    /// How many bits of the nets hold each letter.
    void countLetters(std::map<char, int>& counts) const {
        for (const auto& net : nets_) {
            for (const char letter : std::string(net->get(kTimes).c_str())) ++counts[letter];
        }
    }

private:
    Net& netAt(int net) { return *nets_[static_cast<std::size_t>(net)]; }
    Port& portAt(int port) { return *ports_[static_cast<std::size_t>(port)]; }

    std::mt19937 random_;
    NetModel model_;
    std::vector<std::unique_ptr<PinSpec>> specs_;
    std::vector<std::unique_ptr<Net>> nets_;
    std::vector<std::unique_ptr<Port>> ports_;
};

enum class Shape { Apart, Chain, Star, Loop, Anyhow };

/// Pairs of nets to join.
std::vector<std::pair<int, int>> jointsOf(Shape shape, int nets, Twin& twin) {
    std::vector<std::pair<int, int>> joints;
    for (int i = 1; i < nets; ++i) {
        if (shape == Shape::Chain || shape == Shape::Loop) joints.emplace_back(i - 1, i);
        if (shape == Shape::Star) joints.emplace_back(0, i);
        if (shape == Shape::Anyhow) {
            joints.emplace_back(twin.below(static_cast<std::size_t>(nets)), twin.below(static_cast<std::size_t>(nets)));
        }
    }
    if (shape == Shape::Loop) joints.emplace_back(nets - 1, 0);
    return joints;
}

/// A net with drivers, with ports that nobody drives, and followers, in any order. Gives the ports to be set.
std::vector<int> populate(Twin& twin, int net, bool withSpecs) {
    std::vector<int> toSet;
    const std::size_t width = twin.widthOf(net);
    for (int i = twin.below(3); i > 0; --i) {
        switch (twin.below(withSpecs ? 7 : 6)) {
            case 0:
            case 1:
                toSet.push_back(twin.addPort('O', width));
                twin.attach(toSet.back(), net, kOutside);
                break;
            case 2:
                toSet.push_back(twin.addPort('I', width));
                twin.attach(toSet.back(), net, kInside);
                break;
            case 3:
                toSet.push_back(twin.addPort('B', width));
                twin.attach(toSet.back(), net, twin.oneIn(2) ? kInside : kOutside);
                break;
            case 4: twin.attach(twin.addPort('I', width), net, kOutside); break;
            case 5: {
                const int output = twin.addPort('O', width);  // leads on to a net of its own
                twin.attach(output, net, kInside);
                twin.attach(output, twin.addNet(width), kOutside);
                break;
            }
            default:
                toSet.push_back(twin.addPort('B', 1 + static_cast<std::size_t>(twin.below(width))));
                twin.attachSomewhere(toSet.back(), net, twin.oneIn(2) ? kInside : kOutside);
        }
    }
    return toSet;
}

/// Joins two nets: whole if they are equally wide and no bit ranges are asked for, else by as many bits as fit.
int join(Twin& twin, int outside, int inside, bool withSpecs) {
    const std::size_t widest = std::min(twin.widthOf(outside), twin.widthOf(inside));
    const bool isWhole = twin.widthOf(outside) == twin.widthOf(inside) && (!withSpecs || twin.oneIn(3));
    const int port = twin.addPort('B', isWhole ? widest : 1 + static_cast<std::size_t>(twin.below(widest)));
    for (const auto& [net, side] : {std::pair{outside, kOutside}, {inside, kInside}}) {
        if (isWhole || (twin.portWidth(port) == twin.widthOf(net) && twin.oneIn(2))) {
            twin.attach(port, net, side);
        } else {
            twin.attachSomewhere(port, net, side);
        }
    }
    return port;
}

void compare(Shape shape, bool withSpecs, std::uint32_t seed, std::map<char, int>& letters) {
    Twin twin(seed);
    const int nets = 1 + twin.below(5);
    const std::size_t width = 1 + static_cast<std::size_t>(twin.below(20));
    for (int i = 0; i < nets; ++i) {
        twin.addNet(withSpecs && twin.oneIn(2) ? 1 + static_cast<std::size_t>(twin.below(20)) : width);
    }
    std::vector<int> toSet;
    const auto populateAll = [&] {
        for (int net = 0; net < nets; ++net) {
            for (const int port : populate(twin, net, withSpecs)) toSet.push_back(port);
        }
    };
    populateAll();
    for (const auto& [outside, inside] : jointsOf(shape, nets, twin)) {
        const int bridge = join(twin, outside, inside, withSpecs);
        if (twin.oneIn(5)) toSet.push_back(bridge);
    }
    populateAll();  // so that some stand behind the joints
    for (const int port : toSet) twin.set(port, twin.letters(twin.portWidth(port)), 0);
    ASSERT_NO_FATAL_FAILURE(twin.expectEqual()) << "seed " << seed;
    for (int i = 0; i < 10 && !toSet.empty(); ++i) {
        const int port = toSet[static_cast<std::size_t>(twin.below(toSet.size()))];
        twin.set(port, twin.letters(twin.portWidth(port)), twin.below(kTimes));
        ASSERT_NO_FATAL_FAILURE(twin.expectEqual()) << "seed " << seed;
    }
    twin.countLetters(letters);
}

class NetComparison : public testing::TestWithParam<std::tuple<Shape, bool>> {};

TEST_P(NetComparison, NetsDoWhatThePlainRulesSay) {
    const auto [shape, withSpecs] = GetParam();
    std::map<char, int> letters;
    for (std::uint32_t seed = 1; seed <= 40; ++seed) {
        ASSERT_NO_FATAL_FAILURE(compare(shape, withSpecs, seed, letters));
    }
    // The comparison is worth something: every level occurs, and an X never comes out of a net.
    for (const char letter : {'L', 'H', 'U', 'Z'}) EXPECT_GT(letters[letter], 10) << letter;
    EXPECT_EQ(letters['X'], 0);
}

std::string nameOf(const testing::TestParamInfo<NetComparison::ParamType>& info) {
    const auto [shape, withSpecs] = info.param;
    constexpr const char* kNames[] = {"Apart", "InAChain", "InAStar", "InALoop", "JoinedAnyhow"};
    return std::string(kNames[static_cast<int>(shape)]) + (withSpecs ? "WithBitRanges" : "");
}

INSTANTIATE_TEST_SUITE_P(Shapes, NetComparison,
                         testing::Combine(testing::Values(Shape::Apart, Shape::Chain, Shape::Star, Shape::Loop,
                                                          Shape::Anyhow),
                                          testing::Bool()),
                         nameOf);

}  // namespace
}  // namespace tarnsim
