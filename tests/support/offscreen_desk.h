#pragma once

// Lets the application that is made next run on a desk of 1024 x 768 that nobody sees, as large at any scale
// factor, unless another platform was asked for. The smallest desk that the program is made for.
void useOffscreenDesk();
