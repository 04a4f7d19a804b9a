#include "solar/MercuryView.h"

MercuryView::MercuryView() : PlanetView(ObjectType::Planet, 300)
{}
