#pragma once

#include <QString>

#include <string_view>

namespace quillon::ui {

/// What the frames of one system ask of each other.
class SystemPort
{
public:
    virtual ~SystemPort() = default;

    /// Writes the system's frequency box, which stores the figure and computes anew. @return whether it could.
    virtual bool ShowFrequency(float megahertz, std::string_view mask) = 0;
    /// Whether the frequency follows the chosen band, or is for typing and turning.
    virtual void SetFrequencyFollowsBand(bool follows) = 0;
    /// Runs the choice of the coax type again, so that its loss follows the frequency.
    virtual void RunCoaxTypeAgain() = 0;
    virtual void ShowAntennaStatus(const QString& text) = 0;
    virtual void ShowCoaxStatus(const QString& text) = 0;
};

} // namespace quillon::ui
