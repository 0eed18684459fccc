#include "platform/PackCheck.h"

#include <QtEndian>
#include <vector>

namespace {

// The layout of a binary resource file, versions 2 and 3; numbers have their highest byte first.
constexpr qint64 HeaderSize = 20; // mark, version, and where tree, data and names begin
constexpr qint64 NodeSize = 22;   // name 4, flags 2, what it holds 8, time 8
constexpr qint64 NameHeader = 6;  // length 2, hash 4
constexpr quint16 FolderFlag = 2;

class Walk {
public:
    explicit Walk(QByteArrayView pack) : m_pack(pack) {}

    bool Run() {
        if (m_pack.size() < HeaderSize || !m_pack.startsWith("qres"))
            return false;
        const quint32 version = Number<quint32>(4);
        m_tree = Number<quint32>(8);
        m_data = Number<quint32>(12);
        m_names = Number<quint32>(16);
        m_open = {0};
        qint64 left = m_pack.size() / NodeSize; // more nodes than fit go round in a circle
        while (!m_open.empty()) {
            const qint64 node = m_open.back();
            m_open.pop_back();
            if (left-- <= 0 || !Visit(node))
                return false;
        }
        return version == 2 || version == 3;
    }

private:
    template <class Int> Int Number(qint64 at) const { return qFromBigEndian<Int>(m_pack.data() + at); }
    bool Has(qint64 at, qint64 size) const { return at + size <= m_pack.size(); }

    bool Visit(qint64 node) {
        const qint64 at = m_tree + node * NodeSize;
        if (!Has(at, NodeSize) || (node != 0 && !HasName(m_names + Number<quint32>(at))))
            return false;
        if (!(Number<quint16>(at + 4) & FolderFlag))
            return HasContent(m_data + Number<quint32>(at + 10));
        const qint64 count = Number<quint32>(at + 6);
        const qint64 first = Number<quint32>(at + 10);
        if (!Has(m_tree + first * NodeSize, count * NodeSize))
            return false;
        for (qint64 child = 0; child < count; ++child)
            m_open.push_back(first + child);
        return true;
    }

    bool HasName(qint64 at) const {
        return Has(at, NameHeader) && Has(at + NameHeader, 2 * Number<quint16>(at));
    }

    bool HasContent(qint64 at) const { return Has(at, 4) && Has(at + 4, Number<quint32>(at)); }

    QByteArrayView m_pack;
    qint64 m_tree = 0;
    qint64 m_data = 0;
    qint64 m_names = 0;
    std::vector<qint64> m_open; // nodes that are still to be visited
};

} // namespace

bool IsWholePack(QByteArrayView pack) {
    return Walk(pack).Run();
}
