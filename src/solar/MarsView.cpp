#include "solar/MarsView.h"

MarsView::MarsView() : PlanetView(ObjectType::Planet, 303)
{}
