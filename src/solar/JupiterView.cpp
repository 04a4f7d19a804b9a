#include "solar/JupiterView.h"

JupiterView::JupiterView() : PlanetView(ObjectType::Planet, 304)
{}
