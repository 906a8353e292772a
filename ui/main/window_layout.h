#pragma once

#include "engine/system_id.h"

class QMainWindow;
class QWidget;

namespace quillon::ui {

class AntennaGainFrame;
class CoaxLossFrame;
class CommandFrame;
class ResultsFrame;
class SystemColumn;

/// The frames of the main window.
struct WindowParts
{
    engine::PerSystem<SystemColumn*> columns;
    ResultsFrame* results;
    CoaxLossFrame* coaxLoss;
    AntennaGainFrame* antennaGain;
    CommandFrame* commands;
};

/// Lays the frames out as three cards side by side in a scroll area and gives the window its start size.
/// Both systems' frames share the rows of one grid, so equal frames stand on one line.
void LayOutWindow(QMainWindow& window, QWidget& content, const WindowParts& parts);

/// Tab order: down System One's column, then down System Two's, then the buttons.
void SetWindowTabOrder(const WindowParts& parts);

} // namespace quillon::ui
