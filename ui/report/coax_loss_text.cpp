#include "ui/report/coax_loss_text.h"

#include "engine/mask.h"

namespace quillon::ui {

std::string CoaxLossText(const engine::SystemData& data, std::string_view separator)
{
    return engine::FormatWithMask(data.CoaxLoss, "#0.00", separator);
}

std::string CoaxLossText(const engine::AntennaSystems& systems, int system, std::string_view separator)
{
    return CoaxLossText(systems.Data[engine::ToSystemId(system)], separator);
}

} // namespace quillon::ui
