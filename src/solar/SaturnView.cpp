#include "solar/SaturnView.h"

SaturnView::SaturnView(Sun200& sun) : PlanetView(ObjectType::Planet, 305), Body(sun)
{}
