#version 440

layout(location = 0) in vec3 color;
layout(location = 1) in vec2 place;

layout(location = 0) out vec4 fragment;

layout(std140, binding = 0) uniform Block {
    mat4 itemToClip;
    vec4 casing;
    vec4 sizes;
} block;

void main() {
    float distance = length(place);
    float core = clamp(block.sizes.x + 0.5 - distance, 0.0, 1.0);
    float edge = clamp(block.sizes.y + 0.5 - distance, 0.0, 1.0);
    fragment = vec4(color * core, core) + block.casing * (edge * (1.0 - core));
}
