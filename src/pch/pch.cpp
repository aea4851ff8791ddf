// Carries the precompiled header of the house.
