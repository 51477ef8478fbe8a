#version 440

layout(location = 0) in vec3 color;

layout(location = 0) out vec4 fragment;

layout(std140, binding = 0) uniform Block {
    mat4 itemToClip;
    vec4 casing;
    vec4 sizes;
} block;

void main() {
    float distance = length(gl_PointCoord - vec2(0.5)) * 2.0 * (block.sizes.y + 0.5);
    float core = clamp(block.sizes.x + 0.5 - distance, 0.0, 1.0);
    float edge = clamp(block.sizes.y + 0.5 - distance, 0.0, 1.0);
    fragment = vec4(color * core, core) + block.casing * (edge * (1.0 - core));
}
