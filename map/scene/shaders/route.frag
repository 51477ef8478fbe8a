#version 440

layout(location = 0) in vec3 color;
layout(location = 1) in vec2 place;

layout(location = 0) out vec4 fragment;

layout(std140, binding = 0) uniform Block {
    mat4 itemToClip;
    vec4 levelToItem;
    vec4 ink;
    vec4 casing;
    vec4 widths;
} block;

void main() {
    float halfDrawn = block.levelToItem.w * block.widths.z;
    float distance = length(place) * halfDrawn; // device pixels from the line
    float core = clamp(block.widths.x * block.widths.z + 0.5 - distance, 0.0, 1.0);
    float edge = clamp(block.widths.y * block.widths.z + 0.5 - distance, 0.0, 1.0);
    // The casing ends where the line does: beyond it, it would cut the line that continues there.
    edge *= step(place.y, 0.0);
    vec4 under = block.casing * edge * (1.0 - core);
    fragment = (vec4(color * core, core) + under) * block.widths.w;
}
