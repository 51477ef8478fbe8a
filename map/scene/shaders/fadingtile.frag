#version 440

layout(location = 0) in vec2 place;

layout(location = 0) out vec4 fragment;

layout(std140, binding = 0) uniform Block {
    mat4 itemToClip;
    vec4 opacity;
} block;

layout(binding = 1) uniform sampler2D image;

void main() {
    fragment = vec4(texture(image, place).rgb * block.opacity.x, block.opacity.x);
}
