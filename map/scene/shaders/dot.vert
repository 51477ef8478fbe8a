#version 440

// A dot is a triangle around its circle: three vertices instead of a square's four.
layout(location = 0) in vec2 center; // item pixels
layout(location = 1) in vec4 colorAndCorner;

layout(location = 0) out vec3 color;

layout(std140, binding = 0) uniform Block {
    mat4 itemToClip;
    vec4 casing; // premultiplied
    vec4 sizes;  // radius of the dot, radius with casing, both in device pixels; device pixels per item pixel
} block;

out gl_PerVertex { vec4 gl_Position; float gl_PointSize; };
void main() {
    color = colorAndCorner.rgb;
    gl_PointSize = 2.0 * (block.sizes.y + 0.5);
    gl_Position = block.itemToClip * vec4(center, 0.0, 1.0);
}
