#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace tarnsim {

/// Ports and nets as plain tables, with the rules of resolution written down as simply as can be: to compare the real
/// ones with. Bits are counted from the right of a letter text. Ports and nets are named by their numbers.
class NetModel {
public:
    struct Port {
        char direction;  ///< 'I'nput, 'O'utput or inout 'B'
        std::size_t width;
        bool ztr = true;
        int net[2] = {-1, -1};  ///< inside, outside
        std::map<int, std::string> records = {};
    };
    struct Net {
        std::size_t width;
        std::vector<int> ports = {};
        std::map<int, std::vector<int>> bitsOf = {};  ///< by port: the net's bit of each position
        std::map<int, std::string> records = {};
    };

    std::vector<Port> ports;
    std::vector<Net> nets;

    void attach(int port, int net, int side) {
        nets[at(net)].ports.push_back(port);
        ports[at(port)].net[side] = net;
    }
    void attach(int port, int net, int side, const std::vector<int>& bits) {
        attach(port, net, side);
        nets[at(net)].bitsOf[port] = bits;
    }

    void set(int port, const std::string& value, int time) {
        Port& p = ports[at(port)];
        p.records[time] = value;
        const int far = p.net[p.direction == 'O' ? 1 : 0];
        if (far >= 0) update(far, time, {});
    }

    std::string readNet(int net, int time) const { return inForce(nets[at(net)].records, nets[at(net)].width, time); }

    std::string readPort(int port, int time) const {
        const Port& p = ports[at(port)];
        const std::string own = inForce(p.records, p.width, time);
        if (p.direction != 'B') {
            const int source = p.net[p.direction == 'I' ? 1 : 0];
            return source < 0 ? own : withoutZ(p, seenBy(port, source, time));
        }
        if (p.net[0] >= 0 && p.net[1] >= 0) {
            const std::string inside = seenBy(port, p.net[0], time);
            const std::string outside = seenBy(port, p.net[1], time);
            return withoutZ(p, inside == outside ? inside : std::string(p.width, 'U'));
        }
        if (p.net[0] >= 0) return withoutZ(p, p.records.empty() ? seenBy(port, p.net[0], time) : own);
        if (p.net[1] >= 0) return withoutZ(p, seenBy(port, p.net[1], time));
        return withoutZ(p, own);
    }

private:
    static std::size_t at(int number) { return static_cast<std::size_t>(number); }
    static char bitOf(const std::string& value, int bit) { return value[value.size() - 1 - at(bit)]; }

    static std::string inForce(const std::map<int, std::string>& records, std::size_t width, int time) {
        std::string value(width, 'U');
        for (const auto& [since, letters] : records) {
            if (since <= time) value = letters;
        }
        return value;
    }

    static std::string withoutZ(const Port& port, std::string value) {
        for (char& letter : value) {
            if (port.ztr && letter == 'Z') letter = 'U';
        }
        return value;
    }

    /// The net's value at the bits on which the port stands.
    std::string seenBy(int port, int net, int time) const {
        const std::string full = readNet(net, time);
        const auto found = nets[at(net)].bitsOf.find(port);
        if (found == nets[at(net)].bitsOf.end()) return full;
        std::string seen;
        for (const int bit : found->second) seen = bitOf(full, bit) + seen;
        return seen;
    }

    bool drives(int port, int net) const {
        const Port& p = ports[at(port)];
        if (p.direction == 'O') return p.net[1] == net;
        return p.net[0] == net && (p.direction == 'I' || !p.records.empty());
    }

    /// The letters of all drivers of one bit.
    std::string driversOf(int net, int bit, int time, std::set<int>& visited) const {
        std::string letters;
        int position = bit;
        for (const int port : nets[at(net)].ports) {
            const auto spec = nets[at(net)].bitsOf.find(port);
            if (spec != nets[at(net)].bitsOf.end()) {
                int found = -1;
                for (int i = static_cast<int>(spec->second.size()) - 1; i >= 0; --i) {
                    if (spec->second[at(i)] == bit) found = i;
                }
                if (found < 0) continue;
                position = found;
            }
            if (drives(port, net)) letters += bitOf(readPort(port, time), position);
            const Port& p = ports[at(port)];
            if (p.direction != 'B') continue;
            const int other = p.net[1] == net ? p.net[0] : p.net[1];
            if (other < 0 || !visited.insert(other).second) continue;
            const auto there = nets[at(other)].bitsOf.find(port);
            const int otherBit = there == nets[at(other)].bitsOf.end() ? position : there->second[at(position)];
            letters += driversOf(other, otherBit, time, visited);
        }
        return letters;
    }

    static char levelOf(const std::string& drivers) {
        std::string active;
        for (const char letter : drivers) {
            if (letter != 'Z') active += letter;
        }
        if (active.empty()) return 'Z';
        return active == "H" || active == "L" ? active[0] : 'U';
    }

    void update(int net, int time, std::set<int> visited) {
        std::string value;
        for (int bit = 0; bit < static_cast<int>(nets[at(net)].width); ++bit) {
            std::set<int> seen{net};
            value = levelOf(driversOf(net, bit, time, seen)) + value;
        }
        nets[at(net)].records[time] = value;
        visited.insert(net);
        for (const int port : nets[at(net)].ports) {
            const Port& p = ports[at(port)];
            if (p.direction != 'B') continue;
            const int other = p.net[1] == net ? p.net[0] : p.net[1];
            if (other >= 0 && !visited.contains(other)) update(other, time, visited);
        }
        for (const int port : nets[at(net)].ports) {
            const Port& p = ports[at(port)];
            if ((p.direction == 'I' && p.net[1] == net) || (p.direction == 'O' && p.net[0] == net)) {
                set(port, value, time);
            }
        }
    }
};

}  // namespace tarnsim
