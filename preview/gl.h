// OpenGL with the calls beyond 1.1 that every driver has.
#pragma once

#define GL_GLEXT_PROTOTYPES
#include <GL/gl.h>
#include <GL/glext.h>
