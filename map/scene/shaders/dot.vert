#version 440

// A dot is a triangle around its circle: three vertices instead of a square's four.
layout(location = 0) in vec2 center; // item pixels
layout(location = 1) in vec4 colorAndCorner;

layout(location = 0) out vec3 color;
layout(location = 1) out vec2 place; // device pixels from the centre

layout(std140, binding = 0) uniform Block {
    mat4 itemToClip;
    vec4 casing; // premultiplied
    vec4 sizes;  // radius of the dot, radius with casing, both in device pixels; device pixels per item pixel
} block;

void main() {
    float corner = floor(colorAndCorner.a * 255.0 + 0.5);
    vec2 direction = corner == 0.0 ? vec2(0.0, -2.0) : vec2(corner == 1.0 ? 1.7320508 : -1.7320508, 1.0);
    color = colorAndCorner.rgb;
    place = direction * (block.sizes.y + 0.5);
    gl_Position = block.itemToClip * vec4(center + place / block.sizes.z, 0.0, 1.0);
}
