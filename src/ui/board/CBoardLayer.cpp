#include "CBoardLayer.h"

CBoardLayer::CBoardLayer(double z)
{
    setZValue(z);
}
