#include "solar/NeptuneView.h"

NeptuneView::NeptuneView() : PlanetView(ObjectType::Planet, 307)
{}
