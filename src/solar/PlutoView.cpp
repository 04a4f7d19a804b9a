#include "solar/PlutoView.h"

PlutoView::PlutoView() : PlanetView(ObjectType::Planet, 308)
{}
