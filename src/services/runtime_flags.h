#pragma once

#include <QObject>

namespace zm {

/// Switches of the debug menu. They are never stored.
class RuntimeFlags : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool noHevcCodec READ noHevcCodec WRITE setNoHevcCodec NOTIFY noHevcCodecChanged)

public:
    using QObject::QObject;

    /// True: HEIC and HEIF pictures are refused as though the machine had no decoder for them.
    bool noHevcCodec() const { return m_noHevcCodec; }
    void setNoHevcCodec(bool missing);

signals:
    void noHevcCodecChanged();

private:
    bool m_noHevcCodec = false;
};

} // namespace zm
