/* void checked_call(CheckedCall*): calls a function with the given argument words at a given stack alignment, from
   registers with known content, and records what it leaves behind. Offsets as in checked_call.h.

   The record's address survives the call in a word of the thread's own, whatever the callee does to registers and
   stack. What stood there before is kept in the record, so that calls may nest. Windows has such a word for programs
   at hand; what it uses it for itself, it puts back. */

#ifdef __ELF__
    .section .note.GNU-stack, "", @progbits
#endif
#ifdef __ELF__
    .section .tbss, "awT", @nobits
    .p2align 3
current:
    .skip 8
#ifdef __x86_64__
#define CURRENT %fs:current@tpoff
#else
#define CURRENT %gs:current@ntpoff
#endif
#else
#define CURRENT %fs:0x14
#endif
    .text

#if defined(__i386__)
#ifdef __ELF__
    .globl checked_call
checked_call:
#else
    .globl _checked_call
_checked_call:
#endif
    pushl %ebp
    pushl %ebx
    pushl %esi
    pushl %edi
    movl 20(%esp), %eax
    movl CURRENT, %ecx
    movl %ecx, 92(%eax)
    movl %eax, CURRENT
    movl %esp, 36(%eax)
    stmxcsr 224(%eax)
    fnstcw 228(%eax)
    /* room for the words, then the wanted phase */
    movl 8(%eax), %ecx
    leal 64(,%ecx,4), %edx
    subl %edx, %esp
    andl $-16, %esp
    addl 12(%eax), %esp
    movl 4(%eax), %esi
    movl %esp, %edi
    cld
    rep movsl
    movl %esp, 40(%eax)
    /* from above, as stacks grow where their pages are made one by one */
    movl 236(%eax), %ecx
    movl %esp, %edx
    jecxz 5f
4:  subl $4, %edx
    movl $0x5ac35ac3, (%edx)
    loop 4b
5:  movl %edx, 232(%eax)
    cmpl $0, 88(%eax)
    je 1f
    vzeroupper
1:  fnclex
    fldcw 76(%eax)
    ldmxcsr 68(%eax)
    movl (%eax), %edx
    movl $0x11b0b0b1, %ebx
    movl $0x22515152, %esi
    movl $0x33d1d1d3, %edi
    movl $0x44b9b9b4, %ebp
    movl $0x55555555, %ecx
    call *%edx
    movl CURRENT, %ecx
    movl %eax, 20(%ecx)
    movl %edx, 24(%ecx)
    movl 92(%ecx), %eax
    movl %eax, CURRENT
    movl %esp, 44(%ecx)
    movl %ebx, 48(%ecx)
    movl %esi, 52(%ecx)
    movl %edi, 56(%ecx)
    movl %ebp, 60(%ecx)
    stmxcsr 72(%ecx)
    ldmxcsr 224(%ecx)
    fnstcw 80(%ecx)
    movl 36(%ecx), %esp
    pushfl
    popl 64(%ecx)
    cld
    movl 232(%ecx), %edx
4:  cmpl 40(%ecx), %edx
    je 5f
    cmpl $0x5ac35ac3, (%edx)
    jne 5f
    addl $4, %edx
    jmp 4b
5:  movl %edx, 232(%ecx)
    subl $32, %esp
    fnstenv (%esp)
    movl 8(%esp), %eax
    movl %eax, 84(%ecx)
    fldenv (%esp)
    addl $32, %esp
    fldcw 228(%ecx)
    cmpl $0, 16(%ecx)
    je 2f
    fstpl 28(%ecx)
2:  cmpl $0, 88(%ecx)
    je 3f
    vextractf128 $1, %ymm0, 96(%ecx)
    vextractf128 $1, %ymm1, 112(%ecx)
    vextractf128 $1, %ymm2, 128(%ecx)
    vextractf128 $1, %ymm3, 144(%ecx)
    vextractf128 $1, %ymm4, 160(%ecx)
    vextractf128 $1, %ymm5, 176(%ecx)
    vextractf128 $1, %ymm6, 192(%ecx)
    vextractf128 $1, %ymm7, 208(%ecx)
    vzeroupper
3:  popl %edi
    popl %esi
    popl %ebx
    popl %ebp
    ret

#elif defined(__x86_64__)
    .globl checked_call
    .type checked_call, @function
checked_call:
    pushq %rbp
    pushq %rbx
    pushq %r12
    pushq %r13
    pushq %r14
    pushq %r15
    movq %rdi, %rax
    movq CURRENT, %rcx
    movq %rcx, 296(%rax)
    movq %rax, CURRENT
    movq %rsp, 72(%rax)
    stmxcsr 560(%rax)
    fnstcw 564(%rax)
    movq 16(%rax), %rcx
    leaq 64(,%rcx,8), %rdx
    subq %rdx, %rsp
    andq $-16, %rsp
    addq 24(%rax), %rsp
    movq 8(%rax), %rsi
    movq %rsp, %rdi
    cld
    rep movsq
    movq %rsp, 80(%rax)
    movq 576(%rax), %rcx
    movq %rsp, %rdx
    jrcxz 5f
4:  subq $8, %rdx
    movq $0x5ac35ac3, (%rdx)
    loop 4b
5:  movq %rdx, 568(%rax)
    cmpq $0, 176(%rax)
    je 1f
    vzeroupper
1:  fnclex
    fldcw 152(%rax)
    ldmxcsr 136(%rax)
    movsd 184(%rax), %xmm0
    movsd 192(%rax), %xmm1
    movsd 200(%rax), %xmm2
    movsd 208(%rax), %xmm3
    movsd 216(%rax), %xmm4
    movsd 224(%rax), %xmm5
    movsd 232(%rax), %xmm6
    movsd 240(%rax), %xmm7
    movq 248(%rax), %rdi
    movq 256(%rax), %rsi
    movq 264(%rax), %rdx
    movq 272(%rax), %rcx
    movq 280(%rax), %r8
    movq 288(%rax), %r9
    movq (%rax), %r10
    movq $0x11b0b0b1, %rbx
    movq $0x22b9b9b4, %rbp
    movq $0x33121213, %r12
    movq $0x44131314, %r13
    movq $0x55141415, %r14
    movq $0x66151516, %r15
    movl $8, %eax
    call *%r10
    movq CURRENT, %rcx
    movq %rax, 40(%rcx)
    movq %rdx, 48(%rcx)
    movq 296(%rcx), %rax
    movq %rax, CURRENT
    movsd %xmm0, 56(%rcx)
    movq %rsp, 88(%rcx)
    movq %rbx, 96(%rcx)
    movq %rbp, 104(%rcx)
    movq %r12, 112(%rcx)
    movq %r13, 120(%rcx)
    movq %r14, 128(%rcx)
    movq %r15, 168(%rcx)
    stmxcsr 144(%rcx)
    ldmxcsr 560(%rcx)
    fnstcw 160(%rcx)
    movq 72(%rcx), %rsp
    pushfq
    popq 64(%rcx)
    cld
    movq 568(%rcx), %rdx
4:  cmpq 80(%rcx), %rdx
    je 5f
    cmpq $0x5ac35ac3, (%rdx)
    jne 5f
    addq $8, %rdx
    jmp 4b
5:  movq %rdx, 568(%rcx)
    subq $32, %rsp
    fnstenv (%rsp)
    movl 8(%rsp), %eax
    movl %eax, 164(%rcx)
    fldenv (%rsp)
    addq $32, %rsp
    fldcw 564(%rcx)
    cmpq $0, 176(%rcx)
    je 3f
    vextractf128 $1, %ymm0, 304(%rcx)
    vextractf128 $1, %ymm1, 320(%rcx)
    vextractf128 $1, %ymm2, 336(%rcx)
    vextractf128 $1, %ymm3, 352(%rcx)
    vextractf128 $1, %ymm4, 368(%rcx)
    vextractf128 $1, %ymm5, 384(%rcx)
    vextractf128 $1, %ymm6, 400(%rcx)
    vextractf128 $1, %ymm7, 416(%rcx)
    vextractf128 $1, %ymm8, 432(%rcx)
    vextractf128 $1, %ymm9, 448(%rcx)
    vextractf128 $1, %ymm10, 464(%rcx)
    vextractf128 $1, %ymm11, 480(%rcx)
    vextractf128 $1, %ymm12, 496(%rcx)
    vextractf128 $1, %ymm13, 512(%rcx)
    vextractf128 $1, %ymm14, 528(%rcx)
    vextractf128 $1, %ymm15, 544(%rcx)
    vzeroupper
3:  popq %r15
    popq %r14
    popq %r13
    popq %r12
    popq %rbx
    popq %rbp
    ret
    .size checked_call, . - checked_call
#endif
