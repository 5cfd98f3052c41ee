#include "smooth.h"

#include "gl.h"

SmoothFramebuffer::SmoothFramebuffer(int of_width, int of_height) : width(of_width), height(of_height)
{
    constexpr int samples = 4;
    int most = 0;
    glGetIntegerv(GL_MAX_SAMPLES, &most);
    if (glGetError() != GL_NO_ERROR || most < samples)
        return;
    glGenFramebuffers(1, &framebuffer);
    glGenRenderbuffers(2, buffers);
    glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
    constexpr GLenum formats[] = {GL_RGBA8, GL_DEPTH24_STENCIL8},
                     places[] = {GL_COLOR_ATTACHMENT0, GL_DEPTH_STENCIL_ATTACHMENT};
    for (int i = 0; i < 2; ++i) {
        glBindRenderbuffer(GL_RENDERBUFFER, buffers[i]);
        glRenderbufferStorageMultisample(GL_RENDERBUFFER, samples, formats[i], width, height);
        glFramebufferRenderbuffer(GL_FRAMEBUFFER, places[i], GL_RENDERBUFFER, buffers[i]);
    }
    is_usable =
        glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE && glGetError() == GL_NO_ERROR;
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
}

SmoothFramebuffer::~SmoothFramebuffer()
{
    if (framebuffer == 0)
        return;
    glDeleteFramebuffers(1, &framebuffer);
    glDeleteRenderbuffers(2, buffers);
}

void SmoothFramebuffer::begin() const
{
    if (is_usable)
        glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
}

void SmoothFramebuffer::end() const
{
    if (!is_usable)
        return;
    glBindFramebuffer(GL_READ_FRAMEBUFFER, framebuffer);
    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, 0);
    glBlitFramebuffer(0, 0, width, height, 0, 0, width, height, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
}
