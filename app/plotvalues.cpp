#include "plotvalues.h"

PlotValues &PlotValues::shared()
{
    static PlotValues values;
    return values;
}
