#version 440

layout(location = 0) in vec3 color;
layout(location = 1) in vec2 place;

layout(location = 0) out vec4 fragment;

layout(std140, binding = 0) uniform Block {
    mat4 itemToClip;
    vec4 color;
    vec4 casing;
    vec4 widths;
} block;

void main() {
    float density = block.widths.w;
    float distance = length(place) * block.widths.z * density; // device pixels from the line
    float core = clamp(block.widths.x * density + 0.5 - distance, 0.0, 1.0);
    float edge = clamp(block.widths.y * density + 0.5 - distance, 0.0, 1.0);
    fragment = vec4(color * core, core) + block.casing * edge * (1.0 - core);
}
