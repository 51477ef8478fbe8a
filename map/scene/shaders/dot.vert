#version 440

layout(location = 0) in vec2 position; // item pixels
layout(location = 1) in vec4 tint;

layout(location = 0) out vec3 color;

layout(std140, binding = 0) uniform Block {
    mat4 itemToClip;
    vec4 casing; // premultiplied
    vec4 sizes;  // radius of the dot, radius with casing, size of the point: device pixels
} block;

out gl_PerVertex {
    vec4 gl_Position;
    float gl_PointSize;
};

void main() {
    color = tint.rgb;
    gl_PointSize = block.sizes.z;
    gl_Position = block.itemToClip * vec4(position, 0.0, 1.0);
}
