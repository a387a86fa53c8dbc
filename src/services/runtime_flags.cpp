#include "services/runtime_flags.h"

namespace zm {

void RuntimeFlags::setNoHevcCodec(bool missing)
{
    if (m_noHevcCodec == missing)
        return;
    m_noHevcCodec = missing;
    emit noHevcCodecChanged();
}

} // namespace zm
