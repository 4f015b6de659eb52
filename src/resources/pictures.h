#pragma once

// Numbers of the pictures among the program's resources; the resource compiler reads this too.
#define PICTURE_APPLICATION 1
